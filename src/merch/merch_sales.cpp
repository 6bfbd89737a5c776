#include "merch/merch_sales.h"

#include "core/numbers.h"
#include "core/purse.h"
#include "merch/plans.h"
#include "merch/products.h"
#include "social/chirps.h"

namespace backbeat {

namespace {

constexpr double weeksOfYear = 52;
constexpr double longestSellOut = 59;  // minutes
constexpr double greatestRise = 2;

// The fees of plans, as the shares that a product keeps from its making.
constexpr double onsiteShare = 0.027;
constexpr double dynamicShare = 0.03;
constexpr double dearestShare = 0.035;

/// What one product did in the week.
struct Sale {
  int64_t units = 0;
  double gross = 0;
  int64_t minutes = 0;  ///< in which the whole run went, 0 when it did not
};

bool isOnShelf(const GameState& state, const Merch& product) {
  return product.isRetired == 0 && product.remainingInventory >= 1 && weeksUntilOnSale(state, product) == 0;
}

/// At the shows of a tour. A product made under the dearest plan is not sold there: intended.
bool isSoldAtShows(const GameState& state, const Merch& product) {
  return state.onTour >= 1 && state.merchWebsiteTransactionFee >= onsiteFee && product.transactionFees >= onsiteShare &&
         product.transactionFees < dearestShare;
}

bool hasDynamicPrice(const GameState& state, const Merch& product) {
  return product.transactionFees >= dynamicShare && state.merchWebsiteTransactionFee >= dynamicFee;
}

void boast(Game& game, const Merch& product, int64_t minutes) {
  postChirpForArtist(game, "SOLD OUT in " + std::to_string(minutes) + " minutes 🔥 " + product.name,
                     game.state.totalFans);
}

/// More is wanted than there is. Under dynamic pricing the wish drives the price.
Sale sellOut(Game& game, const Merch& product, int64_t wanted) {
  Sale sale{.units = product.remainingInventory};
  double rise = 1;
  if (hasDynamicPrice(game.state, product)) {
    const double minutes = longestSellOut - game.random.uniformDouble(0, 57);
    if (product.startingInventory < wanted) {
      sale.minutes = truncate(minutes);
      boast(game, product, sale.minutes);
    }
    rise = static_cast<double>(wanted) / static_cast<double>(sale.units);
    if (rise > greatestRise) rise = game.random.uniformDouble(2.05, 3.5);
  }
  sale.gross = rise * product.pricePerUnit * static_cast<double>(sale.units);
  return sale;
}

Sale sell(Game& game, const Merch& product, int64_t wanted) {
  if (wanted > product.remainingInventory) return sellOut(game, product, wanted);
  return {.units = wanted, .gross = product.pricePerUnit * static_cast<double>(wanted)};
}

void record(Game& game, size_t position, const Sale& sale, bool atShows) {
  GameState& state = game.state;
  const Merch& product = state.saveAllMerchReleasedList[position];
  MerchWeeklySales row;
  row.merchId = product.merchId;
  row.merchName = product.name;
  row.unitsSold = sale.units;
  row.merchGross = sale.gross;
  row.merchTransactionFees = sale.gross * product.transactionFees;
  row.weekNumber = state.weekNumber;
  row.weekNumberForTracking = state.weekNumberForTracking;
  row.yearNumber = state.yearNumber;
  row.onTour = atShows ? 1 : 0;
  state.saveAllMerchReleasedList.update(position, [&](Merch& sold) {
    sold.remainingInventory -= sale.units;
    sold.totalUnitsSold += sale.units;
    sold.totalRevenue += sale.gross;
    sold.totalCost += row.merchTransactionFees;
    if (sale.minutes > 0) sold.minutesToSellOut = sale.minutes;
  });
  earn(game, {.dollars = sale.gross - row.merchTransactionFees});
  state.saveAllMerchWeeklySales.append(std::move(row));
}

}  // namespace

void sellWeeklyMerch(Game& game) {
  GameState& state = game.state;
  const auto& products = state.saveAllMerchReleasedList;
  if (products.empty()) return;
  const double share = game.random.uniformDouble(0.005, 0.015);
  double demand = share * static_cast<double>(state.totalFans) / weeksOfYear;
  for (const uint32_t i : products.awake()) {
    if (!isOnShelf(state, products[i])) continue;
    const bool atShows = isSoldAtShows(state, products[i]);
    if (atShows) demand += share * 3 * static_cast<double>(game.turn.seatsSoldOnTourForMerch);
    const Sale sale = sell(game, products[i], truncate(demand * products[i].popularity));
    record(game, i, sale, atShows);
  }
  game.save(&GameState::saveAllMerchReleasedList, &GameState::saveAllMerchWeeklySales, &GameState::totalCashAvailable);
}

}  // namespace backbeat
