#include "merch/products.h"

#include <algorithm>

#include "core/calendar.h"
#include "core/money.h"
#include "core/purse.h"

namespace backbeat {

namespace {

constexpr int64_t restockEnergy = 25;
constexpr int64_t unitsOfARun = 10'000;

double costOfOrder(const Merch& product) {
  return static_cast<double>(product.startingInventory) * product.totalCostPerUnit;
}

}  // namespace

std::optional<size_t> productPosition(const GameState& state, int64_t merchId) {
  const auto& products = state.saveAllMerchReleasedList;
  const size_t found = products.find([&](const Merch& product) { return product.merchId == merchId; });
  if (found == products.size()) return std::nullopt;
  return found;
}

int64_t activeProducts(const GameState& state) {
  const auto& products = state.saveAllMerchReleasedList;
  const std::vector<uint32_t> awake = products.awake();
  return std::count_if(awake.begin(), awake.end(), [&](uint32_t i) { return products[i].isRetired == 0; });
}

int64_t unitsStored(const GameState& state) {
  int64_t units = 0;
  for (const uint32_t i : state.saveAllMerchReleasedList.awake()) {
    const Merch& product = state.saveAllMerchReleasedList[i];
    if (product.isRetired == 0) units += product.remainingInventory;
  }
  return units;
}

double netSales(const GameState& state, CalendarWeek week) {
  double net = 0;
  for (const MerchWeeklySales& row : rowsOfWeek(state.saveAllMerchWeeklySales, week))
    net += row.merchGross - row.merchTransactionFees;
  return net;
}

int64_t weeksToManufacture(const GameState& state, int64_t units) {
  return state.weeksToManufactureMerch * (units > unitsOfARun ? units / unitsOfARun : 1);
}

int64_t weeksUntilOnSale(const GameState& state, const Merch& product) {
  const int64_t week = product.weekLaunched + product.weeksToManufacture + product.weeksToShip + 1;
  return std::max<int64_t>(week - state.weekNumberForTracking, 0);
}

void letRetiredProductsSleep(GameState& state) {
  state.saveAllMerchReleasedList.letSleep([](const Merch& product) { return product.isRetired != 0; });
}

bool isSoldOut(const Merch& product) { return product.isRetired == 0 && product.remainingInventory < 1; }

bool canRestock(const Merch& product) { return isSoldOut(product) && product.limitedEdition < 1; }

std::string productStanding(const GameState& state, const Merch& product) {
  if (product.isRetired != 0) return "Retired";
  const std::string units = withCommas(product.remainingInventory) + " units for sale";
  if (canRestock(product)) return units + " • Sold out (tap to reorder)";
  if (isSoldOut(product)) return units + " • Sold out (limited edition)";
  const int64_t weeks = weeksUntilOnSale(state, product);
  return weeks > 0 ? units + " • Manufacturing (" + std::to_string(weeks) + " weeks)" : units;
}

Price restockCost(const Merch& product) { return {.energy = restockEnergy, .dollars = costOfOrder(product)}; }

Outcome askToRestock(Game& game, int64_t merchId, Action confirmed) {
  const auto position = productPosition(game.state, merchId);
  if (!position) return {};
  const Merch& product = game.state.saveAllMerchReleasedList[*position];
  if (!canRestock(product)) return {};
  if (!hasEnergy(game.state, restockCost(product))) {
    return noEnergy("\nYou do not have enough energy to restock this product.");
  }
  pay(game, {.energy = restockEnergy});
  stateChanged(game);
  return ask<"🗂 Restock? 🗂">("\nPlace another order - details are below:\n\nINVENTORY\n" +
                                       withCommas(product.startingInventory) + "\n\nPRICE PER UNIT:\n" +
                                       price(product.totalCostPerUnit) + ".\n\nAre you sure you want to restock " +
                                       product.name + "?",
                                   "No", {"Yes, Restock", std::move(confirmed), AlertButton::Style::normal});
}

Outcome restockMerch(Game& game, int64_t merchId) {
  GameState& state = game.state;
  const auto position = productPosition(state, merchId);
  if (!position || !canRestock(state.saveAllMerchReleasedList[*position])) return {};
  const Price cost = {.dollars = costOfOrder(state.saveAllMerchReleasedList[*position])};
  if (!hasCash(state, cost)) return noCash("\nYou don't have enough cash to restock this product.");
  pay(game, cost);
  state.saveAllMerchReleasedList.update(*position, [&](Merch& product) {
    product.remainingInventory = product.startingInventory;
    product.totalCost += cost.dollars;
    product.weekReordered = state.weekNumberForTracking;
    product.weeksToManufacture = weeksToManufacture(state, product.startingInventory);
    product.weeksToShip = state.weeksToShipMerch;
    product.transactionFees = state.merchWebsiteTransactionFee / 100;
    product.reorderCount += 1;
  });
  game.save(&GameState::saveAllMerchReleasedList);
  stateChanged(game);
  return success();
}

Outcome askToRetire(Game& game, int64_t merchId, Action confirmed, std::optional<double>& offer) {
  const auto position = productPosition(game.state, merchId);
  if (!position) return {};
  const Merch& product = game.state.saveAllMerchReleasedList[*position];
  if (product.isRetired != 0) return {};
  if (!hasEnergy(game.state, retireCost)) {
    return noEnergy("\nYou do not have enough energy to retire this product.");
  }
  pay(game, retireCost);
  stateChanged(game);
  offer = 0;
  std::string message = "\nAre you sure you want to retire ";
  if (product.remainingInventory > 0) {
    offer = product.totalCostPerUnit * game.random.uniformDouble(0.10, 0.75);
    message = "\nYou received an offer for the remaining inventory:\n\nINVENTORY\n" +
              withCommas(product.remainingInventory) + "\n\nPRICE PER UNIT\n" + price(*offer) +
              "\n\nAre you sure you want to retire ";
  }
  return ask<"🗂 Retire Product 🗂">(message + product.name, "No",
                                         {"Yes, Retire", std::move(confirmed), AlertButton::Style::destructive});
}

Outcome retireMerch(Game& game, int64_t merchId, double offer) {
  GameState& state = game.state;
  const auto position = productPosition(state, merchId);
  if (!position || state.saveAllMerchReleasedList[*position].isRetired != 0) return {};
  const Merch& product = state.saveAllMerchReleasedList[*position];
  const int64_t left = std::max<int64_t>(product.remainingInventory, 0);
  state.merchEnergyCost -= product.energyCost;
  state.saveAllMerchReleasedList.update(*position, [](Merch& retired) {
    retired.isRetired = 1;
    retired.remainingInventory = 0;
  });
  earn(game, {.dollars = static_cast<double>(left) * offer});
  game.save(&GameState::saveAllMerchReleasedList, &GameState::merchEnergyCost);
  stateChanged(game);
  return success();
}

Outcome showOnProfile(Game& game, int64_t merchId, bool shown) {
  const auto position = productPosition(game.state, merchId);
  if (!position) return {};
  game.state.saveAllMerchReleasedList.update(*position, [&](Merch& product) { product.showOnSpotify = shown ? 1 : 0; });
  game.save(&GameState::saveAllMerchReleasedList);
  return {};
}

}  // namespace backbeat
