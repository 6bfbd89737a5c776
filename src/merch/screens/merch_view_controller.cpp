#include "merch/screens/merch_view_controller.h"

#include <vector>

#include "core/calendar.h"
#include "core/money.h"
#include "core/view_words.h"
#include "merch/catalogue.h"
#include "merch/plans.h"
#include "merch/product_launch.h"
#include "merch/products.h"
#include "merch/screens/product_rows.h"

namespace backbeat {

namespace {

std::string wayToPlans(const MerchService& service) { return "goToMerch" + std::string(service.name); }

/// The newest first.
std::vector<size_t> productsWhere(const GameState& state, bool retired) {
  const auto& products = state.saveAllMerchReleasedList;
  std::vector<size_t> positions;
  for (size_t i = products.size(); i-- > 0;) {
    if ((products[i].isRetired != 0) == retired) positions.push_back(i);
  }
  return positions;
}

/// What the shop has come to so far.
std::string summary(const GameState& state) {
  int64_t limited = 0;
  double revenue = 0;
  for (const Merch& product : state.saveAllMerchReleasedList) {
    if (product.limitedEdition >= 1) ++limited;
    revenue += product.totalRevenue;
  }
  const size_t released = state.saveAllMerchReleasedList.size();
  std::string text = state.myArtistsName + " has released " + std::to_string(released) + " signature product(s)";
  text += limited > 0 ? " including " + std::to_string(limited) + " limited edition(s)." : ".";
  if (revenue > 0) {
    // The word is spelled as the press office spelled it.
    text += " With sales of " + currency(revenue) + " your merchandise has become an exciting revenue oportunity.";
  }
  return text;
}

std::string planName(const GameState& state, const MerchService& service) {
  const auto plan = currentPlan(state, service);
  if (plan) return std::string(service.plans[*plan].name);
  return isSetUp(state, service) ? "Free of charge" : "None yet";
}

double weeklyPlans(const GameState& state) {
  double sum = 0;
  for (const MerchService* service : merchServices) {
    if (const auto plan = currentPlan(state, *service)) sum += service->plans[*plan].weeklyPrice;
  }
  return sum;
}

}  // namespace

Outcome MerchViewController::act(const Action& action) {
  if (action.id == "goToLaunchNewMerch") return goTo(action.id);
  if (action.verb() == "goToAdminMerch") return goTo(std::string(action.verb()), std::string(action.argument()));
  if (action.id == "retired") retired_.moveTo(action.value);
  for (const MerchService* service : merchServices) {
    if (action.id == wayToPlans(*service)) return goTo(action.id);
  }
  return {};
}

View MerchViewController::view() const {
  View view{.title = "Merch", .theme = Theme::merch};
  const double net = netSales(state(), reportedWeek(state()));
  view.add(
      Tiles{{{.label = "net last week", .value = currency(net), .tone = toneOfChange(net)},
             {.label = "product lines",
              .value = std::to_string(activeProducts(state())) + " of " + std::to_string(state().maxMerchProducts)},
             {.label = "of " + abbreviated(static_cast<double>(state().maxMerchCapacity)) + " stored",
              .value = abbreviated(static_cast<double>(unitsStored(state())))}}});
  describeShelf(view);
  describePlans(view);
  describeRetired(view);
  if (!state().saveAllMerchReleasedList.empty()) view.add(caption(summary(state())));
  view.mainAction = Button{.id = "goToLaunchNewMerch", .label = "New Product", .style = Button::Style::primary};
  view.help =
      Help{.title = "How a shop works",
           .text =
               "A website sells, a manufacturer makes, a warehouse stores and ships. All three charge every week, "
               "whether something sells or not.\n\nYou pay for a whole order at once. It sells to your listeners, week "
               "by week, and at the shows of a tour where the website has terminals there.\n\nEach product costs "
               "energy every week until you retire it, also when it is sold out."};
  return view;
}

void MerchViewController::describeShelf(View& view) const {
  const std::vector<size_t> positions = productsWhere(state(), false);
  if (positions.empty()) {
    view.add(EmptyHint{.icon = "shirt",
                       .text = "Nothing on the shelf. With a website, a manufacturer and a warehouse you can launch "
                               "a product."});
    return;
  }
  Rows shelf{.style = Rows::Style::shelf};
  for (const size_t position : positions) {
    shelf.items.push_back(productRow(state(), state().saveAllMerchReleasedList[position]));
  }
  view.add(std::move(shelf));
}

void MerchViewController::describePlans(View& view) const {
  view.add(Heading{"Plans"});
  Rows plans{.style = Rows::Style::strip};
  for (const MerchService* service : merchServices) {
    plans.items.push_back({.picture = icon(std::string(service->icon)),
                           .title = planName(state(), *service),
                           .subtitle = std::string(service->name),
                           .note = serviceTerms(state(), *service),
                           .opens = true,
                           .id = wayToPlans(*service)});
  }
  view.add(std::move(plans));
  view.add(caption("Together " + currency(weeklyPlans(state())) + " a week."));
}

void MerchViewController::describeRetired(View& view) const {
  const std::vector<size_t> positions = productsWhere(state(), true);
  if (positions.empty()) return;
  view.add(Heading{"Retired"});
  view.add(windowedRows("retired", retired_, static_cast<int64_t>(positions.size()), [&](size_t i) {
    const Merch& product = state().saveAllMerchReleasedList[positions[i]];
    return Row{.picture = productPicture(product),
               .title = product.name,
               .subtitle = product.subCategory + " · " + std::to_string(product.yearLaunched),
               .value = withCommas(product.totalUnitsSold),
               .note = "sold",
               .opens = true,
               .id = "goToAdminMerch:" + std::to_string(product.merchId)};
  }));
}

}  // namespace backbeat
