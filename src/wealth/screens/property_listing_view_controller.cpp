#include "wealth/screens/property_listing_view_controller.h"

#include "core/money.h"
#include "core/purse.h"
#include "core/short_money.h"
#include "wealth/real_estate.h"
#include "wealth/screens/home_words.h"

namespace backbeat {

namespace {

Row rowOf(const Property& property) {
  return {.picture = propertyPicture(property.propertyId, std::string(property.propertyTitle)),
          .title = std::string(property.propertyTitle),
          .subtitle = std::string(property.propertyLocation),
          .value = abbreviatedDollars(property.salePrice),
          .note = property.sqft > 0 ? counted(property.bedrooms, "bed") : acresText(property.acres) + " acres",
          .id = "home:" + std::to_string(property.propertyId)};
}

}  // namespace

Outcome PropertyListingViewController::open() {
  const Property* best = nullptr;
  for (const Property* property : listedProperties(state())) {
    if (!hasCash(state(), costOf(*property))) continue;
    if (!best || property->salePrice > best->salePrice) best = property;
  }
  propertyId_ = best ? best->propertyId : 0;
  return {};
}

/// What stands in front may have been bought meanwhile.
const Property* PropertyListingViewController::shown() const {
  const std::vector<const Property*> listed = listedProperties(state());
  for (const Property* property : listed) {
    if (property->propertyId == propertyId_) return property;
  }
  return listed.empty() ? nullptr : listed.front();
}

Outcome PropertyListingViewController::act(const Action& action) {
  if (action.id == "goToPropertyPortfolio") return goTo(action.id);
  const Property* property = propertyWithId(wholeNumber(action.argument()).value_or(0));
  if (action.verb() == "home" && property) propertyId_ = property->propertyId;
  if (action.verb() == "purchase" && property) return purchase(*property);
  if (action.id == "purchaseButton" && shown()) {
    return askToBuyProperty(state(), *shown(), {"purchase:" + std::to_string(shown()->propertyId), ""});
  }
  return {};
}

/// A new owner is shown around.
Outcome PropertyListingViewController::purchase(const Property& property) {
  Outcome outcome = buyProperty(game_, property);
  if (outcome.done()) outcome += goTo("goToPropertyPortfolio", std::to_string(property.propertyId));
  return outcome;
}

View PropertyListingViewController::view() const {
  View view{.title = "INTERNATIONAL REALTY", .theme = Theme::estate};
  const Property* property = shown();
  if (!property) {
    view.add(EmptyHint{.icon = "house", .text = "Nothing is for sale. You own it all."});
    view.add(Button{.id = "goToPropertyPortfolio", .label = "Portfolio"});
    return view;
  }
  view.add(Poster{.pictures = {propertyPicture(property->propertyId, std::string(property->propertyTitle))},
                  .title = std::string(property->propertyTitle),
                  .text = std::string(property->propertyLocation),
                  .figure = currency(property->salePrice),
                  .facts = factsOf(*property)});
  view.add(Tiles{{marketTile(state().realEstateIndex),
                  {.label = "Property tax", .value = currency(property->weeklyTax()), .note = "a week"},
                  {.label = "Selling fee",
                   .value = withDecimals(property->transactionFee * 100, 0) + "%",
                   .note = "of the price"}}});
  describeOthers(view, *property);
  view.mainAction =
      Button{.id = "purchaseButton", .label = "Purchase", .price = costOf(*property), .style = Button::Style::primary};
  view.help = Help{.title = "Real Estate",
                   .text =
                       "Buying real estate costs 75 energy.\n\nSelling real estate costs 75 energy.\n\nA home is worth "
                       "what you paid, moved by the market index since. It takes its tax from you every week, and a "
                       "fee when you sell it."};
  return view;
}

void PropertyListingViewController::describeOthers(View& view, const Property& property) const {
  Rows others{.style = Rows::Style::strip};
  for (const Property* other : listedProperties(state())) {
    if (other != &property) others.items.push_back(rowOf(*other));
  }
  const size_t listed = others.items.size() + 1;
  Heading heading{std::to_string(listed) + (listed == 1 ? " home listed" : " homes listed")};
  if (!state().saveAllInvestmentPropertyList.empty()) heading.link = Link{"goToPropertyPortfolio", "Portfolio"};
  view.add(std::move(heading));
  if (!others.items.empty()) view.add(std::move(others));
}

}  // namespace backbeat
