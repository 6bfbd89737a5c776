#include "wealth/weekly_ventures.h"

#include <algorithm>

#include "core/case_folding.h"
#include "core/money.h"
#include "core/numbers.h"
#include "core/purse.h"
#include "core/short_money.h"
#include "core/text.h"
#include "wealth/net_assets.h"
#include "wealth/venture_pools.h"
#include "wealth/venture_rounds.h"
#include "wealth/ventures.h"

namespace backbeat {

namespace {

constexpr int64_t fewestWeeksBetweenLooks = 45;
constexpr int64_t mostWeeksBetweenLooks = 60;
constexpr int64_t bankruptBelow = 1'000'000;  ///< dollars
constexpr int64_t exitRollTop = 40;
constexpr int64_t rollToBeAcquired = 5;
constexpr int64_t rollToGoPublic = 11;

std::string shortDollars(int64_t dollars) { return abbreviatedDollars(static_cast<double>(dollars)); }

/// Moves the valuation of the startup at that position and tells of it; three levels of eleven raise it, three lower
/// it.
void moveValuation(Game& game, size_t position) {
  auto& ventures = game.state.saveAllVentureInvestments;
  const int64_t level = game.random.integer(0, 10);
  const bool rises = level <= 2;
  if (!rises && level <= 7) return;
  const int64_t before = ventures[position].lastValuation;
  const double factor = rises ? game.random.uniformDouble(1.05, 2.0) : game.random.uniformDouble(0.5, 0.95);
  const std::string line(rises ? game.random.element(investmentGrowthChirps)
                               : game.random.element(investmentDeclineChirps));
  // The blank is there twice: kept.
  const std::string text = upperCase(ventures[position].businessName) + " " + line + " " +
                           (rises ? " up from " : " down from ") + shortDollars(before) + (rises ? " 🔼🎉" : " 🔽");
  ventures.update(position, [&](Venture& venture) {
    venture.lastValuation = truncate(static_cast<double>(before) * factor);
    if (venture.timeUntilNextRaise > 0) venture.timeUntilNextRaise -= 1;
    venture.news.push_back(text);
  });
  VentureWeek& week = weekOf(game, ventures[position].businessId);
  week.valuationBefore = before;
  week.isRevalued = true;
  chirpAs(game, ventures[position], text);
}

void reviewVenture(Game& game, size_t position) {
  auto& ventures = game.state.saveAllVentureInvestments;
  if (isRunning(ventures[position]) && ventures[position].timeUntilNextRaise > 0) {
    ventures.update(position, [](Venture& venture) { venture.timeUntilNextRaise -= 1; });
  }
  const int64_t now = game.state.weekNumberForTracking;
  const int64_t patience = game.random.integer(fewestWeeksBetweenLooks, mostWeeksBetweenLooks);
  if (!isRunning(ventures[position]) || patience >= now - ventures[position].weekSinceUpdate) return;
  const bool wasRoundDue = isRoundDue(ventures[position]);
  moveValuation(game, position);
  ventures.update(position, [&](Venture& venture) { venture.weekSinceUpdate = now; });
  if (wasRoundDue) closeRoundWithoutArtist(game, position);
}

/// Ends the startup at that position; a payout is paid, and remembered when none was greater.
void endVenture(Game& game, size_t position, int64_t exit, double payout) {
  GameState& state = game.state;
  state.saveAllVentureInvestments.update(position, [&](Venture& venture) { venture.hasExited = exit; });
  VentureWeek& week = weekOf(game, state.saveAllVentureInvestments[position].businessId);
  week.exit = exit;
  week.payout = payout;
  if (exit == venture_exit::bankrupt) return;
  earn(game, {.dollars = payout});
  state.biggestExit = std::max(state.biggestExit, payout);
  game.save(&GameState::biggestExit);
}

void goBankrupt(Game& game, size_t position) {
  endVenture(game, position, venture_exit::bankrupt, 0);
  const Venture& venture = game.state.saveAllVentureInvestments[position];
  chirpAs(game, venture, venture.businessName + " made the hard decision to file for bankruptcy today.");
}

void beAcquired(Game& game, size_t position) {
  const Venture& venture = game.state.saveAllVentureInvestments[position];
  endVenture(game, position, venture_exit::acquired, estimateOf(venture));
  chirpAs(game, venture,
          "We are excited to announce that " + venture.businessName + " was acquired for " +
              shortDollars(venture.lastValuation) + " 🎉🍾🥂.");
}

void goPublic(Game& game, size_t position) {
  auto& ventures = game.state.saveAllVentureInvestments;
  endVenture(game, position, venture_exit::listed, estimateOf(ventures[position]));
  ventures.update(position, [](Venture& venture) {
    const auto shares = static_cast<double>(venture.totalOutstandingShares);
    venture.publicSharePrice = shares > 0 ? static_cast<double>(venture.lastValuation) / shares : 0;
  });
  const Venture& venture = ventures[position];
  chirpAs(game, venture,
          "We are excited to announce that " + venture.businessName + " rang the bell and IPO'd at " +
              price(venture.publicSharePrice) + " a share at a " + shortDollars(venture.lastValuation) +
              " market cap 🎉🍾💰.");
}

void resolveExit(Game& game, size_t position) {
  const Venture& venture = game.state.saveAllVentureInvestments[position];
  if (!isRunning(venture)) return;
  if (venture.lastValuation < bankruptBelow) return goBankrupt(game, position);
  if (venture.lastValuation == bankruptBelow || venture.currentFundingRound < funding_round::seriesC) return;
  const int64_t roll = game.random.integer(0, exitRollTop);
  if (roll == rollToBeAcquired) beAcquired(game, position);
  if (roll == rollToGoPublic) goPublic(game, position);
}

}  // namespace

void updateVentureValuations(Game& game) {
  const size_t count = game.state.saveAllVentureInvestments.size();
  for (size_t i = 0; i < count; ++i) reviewVenture(game, i);
  if (count > 0) game.save(&GameState::saveAllVentureInvestments);
}

void resolveVentureExits(Game& game) {
  const size_t count = game.state.saveAllVentureInvestments.size();
  for (size_t i = 0; i < count; ++i) resolveExit(game, i);
  if (count > 0) game.save(&GameState::saveAllVentureInvestments);
}

}  // namespace backbeat
