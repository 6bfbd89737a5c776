#include "wealth/screens/venture_portfolio_view_controller.h"

#include <algorithm>
#include <vector>

#include "core/money.h"
#include "core/short_money.h"
#include "core/view_words.h"
#include "wealth/net_assets.h"
#include "wealth/screens/venture_words.h"
#include "wealth/venture_rounds.h"
#include "wealth/ventures.h"

namespace backbeat {

namespace {

constexpr size_t mostNews = 4;

/// The last years are the most interesting: what runs first, then what ended; each newest first.
std::vector<const Venture*> inOrder(const GameState& state) {
  std::vector<const Venture*> ventures;
  for (const Venture& venture : state.saveAllVentureInvestments) ventures.insert(ventures.begin(), &venture);
  std::stable_partition(ventures.begin(), ventures.end(), [](const Venture* venture) { return isRunning(*venture); });
  return ventures;
}

/// What came of one that ended. A private sale is remembered by its status alone.
std::string outcomeOf(const Venture& venture) {
  if (venture.hasExited == venture_exit::bankrupt) return "$0";
  return venture.hasExited == venture_exit::soldPrivately ? "sold" : abbreviatedDollars(estimateOf(venture));
}

Row rowOf(const Venture& venture) {
  const double worth = estimateOf(venture);
  const double gain = gainOn(venture, worth);
  Row row{.picture = markOf(venture),
          .title = titleOf(venture),
          .subtitle = roundName(venture.currentFundingRound) + " · " + std::to_string(venture.percentageOwned) + "%",
          .value = isRunning(venture) ? abbreviatedDollars(worth) : outcomeOf(venture),
          .opens = true,
          .id = "goToSellVentureShares:" + std::to_string(venture.businessId)};
  if (isRunning(venture)) {
    row.note = gainText(gain);
    row.tone = toneOfChange(gain);
    row.points = {venture.investmentAmount, worth};
  } else {
    row.note = "of " + abbreviatedDollars(venture.investmentAmount);
  }
  return row;
}

}  // namespace

Outcome VenturePortfolioViewController::act(const Action& action) {
  if (action.verb() == "goToSellVentureShares") return goTo(std::string(action.verb()), std::string(action.argument()));
  return {};
}

View VenturePortfolioViewController::view() const {
  View view{.title = "Startups", .theme = Theme::bank};
  if (state().saveAllVentureInvestments.empty()) {
    view.add(EmptyHint{.icon = "rocket",
                       .text = "No startup has your money yet. Founders show their Pitch Deck among the chances of a "
                               "week."});
  } else {
    describeWorth(view);
    describeNews(view);
    describeHoldings(view);
    describeCompanies(view);
  }
  view.help = startupsHelp();
  return view;
}

void VenturePortfolioViewController::describeWorth(View& view) const {
  const double worth = venturesValue(state());
  double putIn = 0;
  Gauges parts{.style = Gauges::Style::split};
  for (const Venture* venture : inOrder(state())) {
    if (!isRunning(*venture)) continue;
    putIn += venture->investmentAmount;
    parts.items.push_back({.label = venture->businessName, .share = shareOf(estimateOf(*venture), worth)});
  }
  if (parts.items.empty()) return;
  const double gain = worth - putIn;
  view.add(Chart{.title = "Worth today",
                 .value = currency(worth),
                 .note = (gain > 0 ? "+" : "") + currency(gain) + " on " + currency(putIn) + " put in",
                 .tone = toneOfChange(gain)});
  view.add(std::move(parts));
}

/// The latest of each.
void VenturePortfolioViewController::describeNews(View& view) const {
  Rows wire{.style = Rows::Style::wire};
  for (const Venture* venture : inOrder(state())) {
    if (venture->news.empty() || wire.items.size() == mostNews) continue;
    wire.items.push_back(newsRow(*venture, venture->news.back()));
  }
  if (wire.items.empty()) return;
  view.add(Heading{"News"});
  view.add(std::move(wire));
}

/// What each running company is about, and what all of it was last said to be worth.
void VenturePortfolioViewController::describeCompanies(View& view) const {
  Rows wire{.style = Rows::Style::wire};
  for (const Venture* venture : inOrder(state())) {
    if (!isRunning(*venture)) continue;
    wire.items.push_back(
        {.picture = icon("document"), .title = venture->businessName, .subtitle = valuationText(*venture)});
  }
  if (wire.items.empty()) return;
  view.add(Heading{"Companies"});
  view.add(std::move(wire));
}

void VenturePortfolioViewController::describeHoldings(View& view) const {
  Rows running;
  Rows ended;
  for (const Venture* venture : inOrder(state())) {
    (isRunning(*venture) ? running : ended).items.push_back(rowOf(*venture));
  }
  if (!running.items.empty()) {
    view.add(Heading{"Holdings · " + std::to_string(running.items.size()) + " running"});
    view.add(std::move(running));
  }
  if (!ended.items.empty()) {
    view.add(Heading{"Exits"});
    view.add(std::move(ended));
  }
}

}  // namespace backbeat
