#include "merch/screens/admin_merch_view_controller.h"

#include <algorithm>
#include <utility>

#include "core/money.h"
#include "core/view_words.h"
#include "merch/catalogue.h"
#include "merch/products.h"
#include "music/covers.h"

namespace backbeat {

namespace {

constexpr size_t weeksOnGraph = 26;

Figure dollars(std::string label, double amount, Tone tone = Tone::plain) {
  return {.label = std::move(label), .value = currency(amount), .amount = amount, .dollars = true, .tone = tone};
}

}  // namespace

Outcome AdminMerchViewController::act(const Action& action) {
  const Question asked = std::exchange(asked_, Question{});
  if (action.id == "restockButton") {
    Outcome outcome = askToRestock(game_, merchId_, {"restock", ""});
    asked_.restock = outcome.result == Result::asked;
    return outcome;
  }
  if (action.id == "retireButton") return askToRetire(game_, merchId_, {"retire", ""}, asked_.offer);
  if (action.id == "showOnSpotify") return showOnProfile(game_, merchId_, action.value == "1");
  return answer(action, asked);
}

/// The energy is paid by the question, so that an answer without one does nothing.
Outcome AdminMerchViewController::answer(const Action& action, const Question& asked) {
  if (action.id == "restock" && asked.restock) return restockMerch(game_, merchId_);
  if (action.id == "retire" && asked.offer) return retireMerch(game_, merchId_, *asked.offer);
  return {};
}

View AdminMerchViewController::view() const {
  View view{.title = "Product", .theme = Theme::merch};
  const auto position = productPosition(state(), merchId_);
  if (!position) {
    view.add(EmptyHint{.icon = "shirt", .text = "This product is no longer there."});
    return view;
  }
  const Merch& product = state().saveAllMerchReleasedList[*position];
  view.title = product.name;
  view.add(Cover{.picture = productPicture(product),
                 .title = product.name,
                 .text = product.subCategory + "\n" + productStanding(state(), product),
                 .badge = product.limitedEdition >= 1 ? "Limited edition" : ""});
  view.add(
      Tiles{{{.icon = "cash", .label = "Price", .value = price(product.pricePerUnit)},
             {.icon = "factory", .label = "A unit costs", .value = price(product.totalCostPerUnit)},
             {.icon = "cart", .label = "Website fee", .value = withDecimals(product.transactionFees * 100, 1) + "%"}}});
  describeSales(view, product);
  describeMoney(view, product);
  describeSongs(view, product);
  if (product.isRetired == 0) describeActions(view, product);
  return view;
}

void AdminMerchViewController::describeSales(View& view, const Merch& product) const {
  const auto weeks = state().saveAllMerchWeeklySales.historyOf(product.merchId);
  Chart chart{.title = "Units sold",
              .value = withCommas(product.totalUnitsSold),
              .note = product.reorderCount > 0 ? "Ordered again " + counted(product.reorderCount, "time") : "",
              .style = Chart::Style::bars};
  for (const uint32_t position : weeks.subspan(weeks.size() - std::min(weeksOnGraph, weeks.size()))) {
    const MerchWeeklySales& week = state().saveAllMerchWeeklySales[position];
    chart.points.push_back(static_cast<double>(week.unitsSold));
    chart.labels.push_back("W" + std::to_string(week.weekNumber));
  }
  view.add(std::move(chart));
  if (product.minutesToSellOut > 0) {
    view.add(caption("A whole run went in " + counted(product.minutesToSellOut, "minute") + "."));
  }
}

void AdminMerchViewController::describeMoney(View& view, const Merch& product) const {
  const double net = product.totalRevenue - product.totalCost;
  view.add(Figures{.title = "So far",
                   .items = {dollars("Sales", product.totalRevenue), dollars("Orders and fees", -product.totalCost)},
                   .total = dollars("Left for you", net, toneOfChange(net))});
}

void AdminMerchViewController::describeSongs(View& view, const Merch& product) const {
  if (product.songList.empty()) return;
  view.add(Heading{"Songs"});
  Rows songs;
  for (const Song& song : product.songList) {
    songs.items.push_back({.picture = coverOf(state(), song),
                           .title = song.title,
                           .subtitle = song.album,
                           .value = withDecimals(song.productionRating, 1),
                           .note = "rating"});
  }
  view.add(std::move(songs));
}

void AdminMerchViewController::describeActions(View& view, const Merch& product) const {
  view.add(Toggle{.id = "showOnSpotify",
                  .label = "On your artist profile",
                  .on = product.showOnSpotify >= 1,
                  .note = "Where listeners see it"});
  view.add(caption("It costs " + std::to_string(product.energyCost) +
                   " energy a week until you retire it, also when it is sold out. Whoever asks to restock or to retire "
                   "pays the energy, whatever the answer then is."));
  Button retire{.id = "retireButton", .label = "Retire", .price = retireCost, .style = Button::Style::destructive};
  if (!canRestock(product)) {
    view.mainAction = std::move(retire);
    return;
  }
  view.add(std::move(retire));
  view.mainAction = Button{.id = "restockButton",
                           .label = "Restock " + withCommas(product.startingInventory),
                           .price = restockCost(product),
                           .style = Button::Style::primary};
}

}  // namespace backbeat
