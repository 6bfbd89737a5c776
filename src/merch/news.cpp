#include "merch/news.h"

#include <algorithm>
#include <optional>
#include <span>

#include "core/money.h"
#include "merch/catalogue.h"
#include "merch/products.h"

namespace backbeat {

namespace {

std::string quoted(const Merch& product) { return "“" + product.name + "”"; }

/// Whether a run of it was ever sold to the last unit.
bool everSoldOut(const Merch& product) {
  return product.reorderCount > 0 || product.totalUnitsSold >= product.startingInventory;
}

void addFirstProduct(const Game& game, std::vector<News>& news) {
  const auto& products = game.state.saveAllMerchReleasedList;
  const int64_t week = game.turn.before.absoluteWeek;
  if (products.empty() || products[0].weekLaunched != week) return;
  const Merch& first = products[0];
  const int64_t weeks = weeksUntilOnSale(game.state, first);
  news.push_back({.kind = News::Kind::first,
                  .rank = 470,
                  .key = "product",
                  .picture = productPicture(first),
                  .kicker = "Your first product",
                  .headline = quoted(first) + " is being made",
                  .text = withCommas(first.startingInventory) + " at " + price(first.pricePerUnit) +
                          ", in the shop in " + counted(weeks, "week")});
}

/// What of it was sold in the week; nullptr when none was.
const MerchWeeklySales* rowOf(std::span<const MerchWeeklySales> sales, const Merch& product) {
  const auto found = std::find_if(sales.begin(), sales.end(), [&](const MerchWeeklySales& row) {
    return row.merchId == product.merchId && row.unitsSold > 0;
  });
  return found == sales.end() ? nullptr : &*found;
}

/// Whether nothing was ever sold to the last unit before the week.
bool isFirstSellOut(const GameState& state, std::span<const MerchWeeklySales> sales) {
  const auto& products = state.saveAllMerchReleasedList;
  return std::none_of(products.begin(), products.end(), [&](const Merch& product) {
    return product.reorderCount > 0 || (everSoldOut(product) && !(isSoldOut(product) && rowOf(sales, product)));
  });
}

void addSoldOut(const Game& game, std::vector<News>& news) {
  const auto& products = game.state.saveAllMerchReleasedList;
  const std::span<const MerchWeeklySales> sales = rowsOfWeek(game.state.saveAllMerchWeeklySales, game.turn.before.week);
  std::optional<bool> isFirst;  // looks at all there ever was, so that only a week that tells of one asks
  for (const uint32_t i : products.awake()) {
    const Merch& product = products[i];
    const MerchWeeklySales* row = isSoldOut(product) ? rowOf(sales, product) : nullptr;
    if (!row) continue;
    if (!isFirst) isFirst = isFirstSellOut(game.state, sales);
    news.push_back({.kind = *isFirst ? News::Kind::first : News::Kind::reached,
                    .rank = *isFirst ? 500 : 335,
                    .key = "product sold out",
                    .picture = productPicture(product),
                    .kicker = *isFirst ? "Your first sold-out product" : "Gone from the shop",
                    .headline = product.name,
                    .text = "The last " + counted(row->unitsSold, "unit") + " went for " + currency(row->merchGross) +
                            (canRestock(product) ? "; more can be made" : ", and there will be no more"),
                    .figure = withCommas(row->unitsSold),
                    .stamp = "SOLD OUT"});
    isFirst = false;
  }
}

}  // namespace

void addMerchNeeds(const Game& game, std::vector<Need>& needs) {
  const auto& products = game.state.saveAllMerchReleasedList;
  const Merch* waiting = nullptr;
  for (const uint32_t i : products.awake()) {
    const Merch& product = products[i];
    if (!isSoldOut(product)) continue;
    if (!waiting || (canRestock(product) && !canRestock(*waiting))) waiting = &product;
  }
  if (!waiting) return;
  const bool canHaveMore = canRestock(*waiting);
  needs.push_back({.priority = canHaveMore ? 164 : 162,
                   .picture = productPicture(*waiting),
                   .title = quoted(*waiting) + " is sold out",
                   .subtitle = canHaveMore ? withCommas(waiting->startingInventory) + " more cost " +
                                                 currency(restockCost(*waiting).dollars)
                                           : "It costs " + std::to_string(waiting->energyCost) +
                                                 " energy a week until it is retired",
                   .badge = "!",
                   .segue = "goToAdminMerch",
                   .argument = std::to_string(waiting->merchId)});
}

void addMerchNews(const Game& game, std::vector<News>& news) {
  addFirstProduct(game, news);
  addSoldOut(game, news);
}

}  // namespace backbeat
