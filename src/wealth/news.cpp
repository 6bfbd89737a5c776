#include "wealth/news.h"

#include <algorithm>

#include "core/money.h"
#include "core/numbers.h"
#include "core/own_photo.h"
#include "core/short_money.h"
#include "wealth/garage.h"
#include "wealth/net_assets.h"
#include "wealth/rich_list.h"
#include "wealth/venture_rounds.h"
#include "wealth/ventures.h"

namespace backbeat {

namespace {

constexpr int64_t firstMillion = 1'000'000;

/// What the artist's part would be worth at another valuation of the company.
double worthAt(Venture venture, int64_t valuation) {
  venture.lastValuation = valuation;
  return estimateOf(venture);
}

int64_t wholeFortune(double netAssets) { return truncate(std::max(netAssets, 0.0)); }

/// Dollars by which the report moved the stakes in startups. What an exit paid was worth as much before.
double movedByStartups(const Game& game) {
  double moved = 0;
  for (const VentureWeek& week : game.turn.ventures) {
    const auto position = venturePosition(game.state, week.businessId);
    if (!position) continue;
    const Venture& venture = game.state.saveAllVentureInvestments[*position];
    if (week.isRevalued) moved += estimateOf(venture) - worthAt(venture, week.valuationBefore);
    if (week.exit != venture_exit::running) moved -= estimateOf(venture);
  }
  return moved;
}

/// A million, ten of them, a hundred, where the week's cash carried the fortune past it, or a startup did. Nobody
/// remembers whether it was so before.
void addFortune(const Game& game, std::vector<News>& news) {
  const double now = netAssets(game.state);
  const double before = now - (game.state.totalCashAvailable - game.turn.before.cash) - movedByStartups(game);
  const int64_t passed = passedPowerOfTen(wholeFortune(before), wholeFortune(now));
  if (passed < firstMillion) return;
  const std::string place = worldRank(now);
  news.push_back(
      {.rank = passed == firstMillion ? 410 : 430,
       .key = "fortune " + std::to_string(passed),
       .picture = icon("podium"),
       .kicker = "Farbes has counted",
       .headline = "You are worth " + abbreviatedDollars(static_cast<double>(passed)),
       .text = place == "Unranked" ? "Cash, property, garage and ventures together" : place + " in the world today"});
}

/// The only stake of the portfolio, bought in the week that the report tells of.
void addFirstStake(const GameState& state, std::vector<News>& news) {
  if (state.saveAllVentureInvestments.size() != 1) return;
  const Venture& venture = state.saveAllVentureInvestments[0];
  if (venture.currentFundingRound != funding_round::seed) return;
  if (venture.weekSinceUpdate != state.weekNumberForTracking - 1) return;
  news.push_back({.rank = 330,
                  .key = "stake",
                  .picture = markOf(venture),
                  .kicker = "You are an investor",
                  .headline = "You own " + std::to_string(venture.percentageOwned) + "% of " + venture.businessName,
                  .text = venture.businessTagline});
}

News newsOfExit(const Venture& venture, const VentureWeek& week) {
  if (week.exit == venture_exit::bankrupt) {
    return {.kind = News::Kind::ended,
            .rank = 345,
            .key = "bankrupt",
            .picture = markOf(venture),
            .kicker = "It was worth a try",
            .headline = venture.businessName + " is bankrupt",
            .text = currency(venture.investmentAmount) + " of yours went with it",
            .tone = Tone::bad};
  }
  const bool isListed = week.exit == venture_exit::listed;
  return {.rank = 480,
          .key = "exit",
          .picture = markOf(venture),
          .kicker = isListed ? "The bell has rung" : "Signed and sealed",
          .headline = venture.businessName + (isListed ? " has gone public" : " was bought"),
          .text = currency(week.payout) + " is yours, for " + currency(venture.investmentAmount) + " put in",
          .tone = week.payout < venture.investmentAmount ? Tone::plain : Tone::good};
}

/// Exits, and stakes that are worth twice what was put in since this week.
void addStartups(const Game& game, std::vector<News>& news) {
  for (const VentureWeek& week : game.turn.ventures) {
    const auto position = venturePosition(game.state, week.businessId);
    if (!position) continue;
    const Venture& venture = game.state.saveAllVentureInvestments[*position];
    if (week.exit != venture_exit::running) {
      news.push_back(newsOfExit(venture, week));
      continue;
    }
    const double twice = 2 * venture.investmentAmount;
    if (estimateOf(venture) < twice || worthAt(venture, week.valuationBefore) >= twice) continue;
    news.push_back({.rank = 325,
                    .key = "doubled",
                    .picture = markOf(venture),
                    .kicker = "Twice what you put in",
                    .headline = "Your part of " + venture.businessName + " has doubled",
                    .text = currency(estimateOf(venture)) + " today, on paper"});
  }
}

/// Who raises money again calls among the chances of a week.
void addRaiseNeed(const GameState& state, std::vector<Need>& needs) {
  const auto& ventures = state.saveAllVentureInvestments;
  const size_t position = ventures.find(isRoundDue);
  if (position == ventures.size()) return;
  const Venture& venture = ventures[position];
  needs.push_back({.priority = 50,
                   .picture = markOf(venture),
                   .title = venture.businessName + " raises its " + roundName(venture.currentFundingRound + 1),
                   .subtitle = "Wait for its call among a week's chances, or your part gets smaller",
                   .segue = "goToVenturePortfolio"});
}

}  // namespace

void addWealthNeeds(const Game& game, std::vector<Need>& needs) {
  addRaiseNeed(game.state, needs);
  // What is older than forty years costs more to be rid of each year.
  for (const Transportation& vehicle : game.state.saveAllTransportationOwnedList) {
    const double value = estimateOf(game.state, vehicle);
    if (value >= 0) continue;
    needs.push_back({.priority = 60,
                     .picture = vehiclePicture(vehicle.id, vehicle.title),
                     .title = "Your " + vehicle.title + " is worth less than nothing",
                     .subtitle = "To be rid of it costs " + currency(-value) + ", and more each year",
                     .segue = "goToTransportationOptions"});
    return;
  }
}

void addWealthNews(const Game& game, std::vector<News>& news) {
  addFortune(game, news);
  addFirstStake(game.state, news);
  addStartups(game, news);
}

}  // namespace backbeat
