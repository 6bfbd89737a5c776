#include <algorithm>
#include <numeric>
#include <vector>

#include "core/purse.h"
#include "turn/gigs/gigs.h"
#include "wealth/company_catalogue.h"
#include "wealth/ventures.h"

namespace backbeat {

namespace {

constexpr int64_t lastRoundWithRaise = 3;
constexpr int64_t aPitch = 0;
constexpr int64_t aRaise = 2;
constexpr Price pitchCost = {.energy = 50};

bool raises(const Venture& venture) {
  return isRunning(venture) && venture.currentFundingRound <= lastRoundWithRaise && venture.timeUntilNextRaise == 0;
}

/// Too tired is said first, by the price.
Outcome lookForCompanies(Game& game, WeeklyEvents&) {
  if (!hasEnergy(game.state, pitchCost)) return {};
  if (game.state.saveAllVentureInvestments.size() < companies.size()) return {};
  return refuse<"Nothing of Interest">("\nThe pitch deck was underwhelming this time.");
}

/// A company in which no stake was ever held. There is one, as long as the portfolio is shorter than their table.
int64_t drawCompany(Game& game) {
  const GameState& state = game.state;
  if (state.saveAllVentureInvestments.empty()) {
    return game.random.integer(0, static_cast<int64_t>(companies.size()) - 1);
  }
  std::vector<int64_t> order(companies.size());
  std::iota(order.begin(), order.end(), 0);
  game.random.shuffle(order);
  return *std::find_if(order.begin(), order.end(), [&](int64_t index) {
    return !venturePosition(state, companies[static_cast<size_t>(index)].businessId);
  });
}

Outcome showDeal(Game& game, int64_t kind, int64_t index) {
  game.launch.ventures.ventureDealKind = kind;
  game.launch.ventures.ventureDealIndex = index;
  return goTo("goToVentureDeal");
}

Outcome openFirstRaise(Game& game, const WeeklyEvents&) {
  return showDeal(game, aRaise, static_cast<int64_t>(game.state.saveAllVentureInvestments.find(raises)));
}

}  // namespace

bool anyRaise(const GameState& state) {
  return std::any_of(state.saveAllVentureInvestments.begin(), state.saveAllVentureInvestments.end(), raises);
}

const Gig pitchDeck = {
    .name = "Pitch Deck",
    .icon = "document",
    .headline = "Founders in your inbox",
    .promise = "Somebody wants to show you their slides.",
    .price = pitchCost,
    .refusal = "\nYou do not have enough energy available for that side hustle work.",
    .guard = lookForCompanies,
    .effect = [](Game& game, const WeeklyEvents&) { return showDeal(game, aPitch, drawCompany(game)); },
};

/// Says 50 and takes no energy: meant.
const Gig ventureRaise = {
    .name = "Venture Raise",
    .icon = "trend",
    .headline = "A startup raises again",
    .promise = "Your stake could grow.",
    .price = {.energy = 50, .charge = Charge{}},
    .effect = openFirstRaise,
};

}  // namespace backbeat
