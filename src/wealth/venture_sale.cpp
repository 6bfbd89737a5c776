#include "wealth/venture_sale.h"

#include <algorithm>

#include "core/bands.h"
#include "core/calendar.h"
#include "core/money.h"
#include "core/purse.h"
#include "wealth/net_assets.h"
#include "wealth/ventures.h"

namespace backbeat {

namespace {

constexpr int64_t offerRollTop = 100;
constexpr Band<int64_t, double> rates[] = {{50, 0.7}, {75, 0.8}, {85, 0.85}};
constexpr double bestRate = 0.85;

/// The startup, while it runs.
const Venture* runningVenture(const GameState& state, int64_t businessId) {
  const auto position = venturePosition(state, businessId);
  if (!position || !isRunning(state.saveAllVentureInvestments[*position])) return nullptr;
  return &state.saveAllVentureInvestments[*position];
}

}  // namespace

double buyBackRate(int64_t roll) { return bandFor(rates, roll, bestRate); }

void askForOffer(Game& game, int64_t businessId) {
  const int64_t week = game.state.weekNumberForTracking;
  if (!runningVenture(game.state, businessId)) return;
  StakeOffer& offer = game.launch.ventures.offers[businessId];
  if (offer.week == week) return;
  offer = {.week = week, .rate = buyBackRate(game.random.integer(0, offerRollTop))};
}

std::optional<StakeOffer> offerFor(const Game& game, int64_t businessId) {
  const auto& offers = game.launch.ventures.offers;
  const auto found = offers.find(businessId);
  if (found == offers.end() || !runningVenture(game.state, businessId)) return std::nullopt;
  const StakeOffer& offer = found->second;
  if (offer.isDeclined || offer.week != game.state.weekNumberForTracking) return std::nullopt;
  return offer;
}

double dollarsOf(const Venture& venture, const StakeOffer& offer) { return estimateOf(venture) * offer.rate; }

Outcome sellStake(Game& game, int64_t businessId) {
  GameState& state = game.state;
  const std::optional<StakeOffer> offer = offerFor(game, businessId);
  if (!offer) return noInterest();
  const size_t position = *venturePosition(state, businessId);
  const Venture& venture = state.saveAllVentureInvestments[position];
  const double dollars = dollarsOf(venture, *offer);
  earn(game, {.dollars = dollars});
  state.saveAllVentureInvestments.update(position, [](Venture& sold) { sold.hasExited = venture_exit::soldPrivately; });
  state.biggestExit = std::max(state.biggestExit, dollars);
  game.save(&GameState::saveAllVentureInvestments, &GameState::biggestExit);
  stateChanged(game);
  return news<"🤝 Stake Sold 🤝">("\n" + venture.businessName + " has its shares back, and you have " +
                                      currency(dollars) + ".");
}

Outcome declineOffer(Game& game, int64_t businessId) {
  if (!offerFor(game, businessId)) return noInterest();
  game.launch.ventures.offers[businessId].isDeclined = true;
  return success();
}

Outcome noInterest() { return refuse<"💼 No Interest 💼">("\nNobody is interested in these shares this week."); }

}  // namespace backbeat
