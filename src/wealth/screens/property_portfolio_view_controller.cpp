#include "wealth/screens/property_portfolio_view_controller.h"

#include "core/money.h"
#include "core/short_money.h"
#include "core/view_words.h"
#include "wealth/net_assets.h"
#include "wealth/real_estate.h"
#include "wealth/screens/home_words.h"

namespace backbeat {

const InvestmentProperty* PropertyPortfolioViewController::shown() const {
  const auto& homes = state().saveAllInvestmentPropertyList;
  if (homes.empty()) return nullptr;
  return &homes[holdingPosition(state(), propertyId_).value_or(homes.size() - 1)];
}

Outcome PropertyPortfolioViewController::act(const Action& action) {
  if (action.id == "goToPropertyListing") return goTo(action.id);
  const int64_t propertyId = wholeNumber(action.argument()).value_or(0);
  if (action.verb() == "home" && holdingPosition(state(), propertyId)) propertyId_ = propertyId;
  if (action.verb() == "sell") return sellProperty(game_, propertyId);
  if (action.id == "sellButton" && shown()) {
    return askToSellProperty(state(), shown()->propertyId, {"sell:" + std::to_string(shown()->propertyId), ""});
  }
  return {};
}

View PropertyPortfolioViewController::view() const {
  View view{.title = "Portfolio", .subtitle = "INVESTMENT PROPERTY", .theme = Theme::estate};
  const InvestmentProperty* home = shown();
  if (!home) {
    view.add(EmptyHint{.icon = "house", .text = "You own no property yet. The market has homes and land."});
    view.mainAction = Button{.id = "goToPropertyListing", .label = "Find a Home", .style = Button::Style::primary};
    return view;
  }
  describeHome(view, *home);
  describeMarket(view);
  describeOthers(view, *home);
  view.mainAction = Button{.id = "sellButton", .label = "Sell", .price = sellPropertyCost};
  view.aside = Button{.id = "goToPropertyListing", .label = "Find a Home"};
  return view;
}

void PropertyPortfolioViewController::describeHome(View& view, const InvestmentProperty& home) const {
  const double change = state().realEstateIndex - home.realEstateIndex;
  view.add(Poster{.pictures = {propertyPicture(home.propertyId, home.propertyTitle)},
                  .title = home.propertyTitle,
                  .text = home.propertyLocation,
                  .figure = currency(estimateOf(state(), home)),
                  .facts = factsOf(home)});
  view.add(
      Tiles{{{.label = "Since purchase",
              .value = (change < 0 ? "" : "+") + withDecimals(change * 100, 1) + "%",
              .note = "Estimate: " + abbreviatedDollars(estimateOf(state(), home)),
              .tone = toneOfChange(change)},
             {.label = "Purchase price",
              .value = abbreviatedDollars(home.pricePaid),
              .note = indexText(home.realEstateIndex)},
             {.label = "Property tax", .value = currency(static_cast<double>(home.propertyTax)), .note = "a week"}}});
}

void PropertyPortfolioViewController::describeMarket(View& view) const {
  const Tile market = marketTile(state().realEstateIndex);
  Chart chart{.title = "Market", .value = indexText(state().realEstateIndex), .note = market.note, .tone = market.tone};
  const std::vector<KnownIndex> known = knownIndexes(state());
  for (size_t i = 0; i < known.size() && known.size() > 1; ++i) {  // one point is no line
    chart.points.push_back(known[i].index);
    chart.labels.push_back(std::to_string(known[i].year));
  }
  view.add(std::move(chart));
}

void PropertyPortfolioViewController::describeOthers(View& view, const InvestmentProperty& home) const {
  const auto& homes = state().saveAllInvestmentPropertyList;
  if (homes.size() < 2) return;
  view.add(Heading{counted(static_cast<int64_t>(homes.size()), "holding") + ", " +
                   abbreviatedDollars(propertiesValue(state()))});
  Rows others{.style = Rows::Style::strip};
  for (const InvestmentProperty& other : homes) {
    if (&other == &home) continue;
    const double change = state().realEstateIndex - other.realEstateIndex;
    others.items.push_back({.picture = propertyPicture(other.propertyId, other.propertyTitle),
                            .title = other.propertyTitle,
                            .subtitle = other.propertyLocation,
                            .value = abbreviatedDollars(estimateOf(state(), other)),
                            .note = changeText(change),
                            .id = "home:" + std::to_string(other.propertyId)});
  }
  view.add(std::move(others));
}

}  // namespace backbeat
