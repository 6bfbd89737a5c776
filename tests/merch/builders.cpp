#include "merch/builders.h"

#include "merch/plans.h"
#include "merch/products.h"

namespace backbeat {

namespace {

void subscribe(GameState& state, const MerchService& service, size_t number) {
  WeeklyLineItem entry;
  entry.title = service.plans[number].title;
  entry.amount = service.plans[number].weeklyPrice;
  entry.year = state.yearNumber;
  entry.isExpense = true;
  entry.typeOfExpense = service.typeOfExpense;
  state.saveAllWeeklyLineItems.append(entry);
}

}  // namespace

void openShop(GameState& state, const ShopPlans& plans) {
  subscribe(state, merchWebsite, plans.website);
  subscribe(state, merchManufacturing, plans.manufacturing);
  subscribe(state, merchLogistics, plans.logistics);
  state.merchWebsiteTransactionFee = merchWebsite.plans[plans.website].fee;
  state.weeksToManufactureMerch = merchManufacturing.plans[plans.manufacturing].weeks;
  state.maxMerchProducts = merchManufacturing.plans[plans.manufacturing].limit;
  state.weeksToShipMerch = merchLogistics.plans[plans.logistics].weeks;
  state.maxMerchCapacity = merchLogistics.plans[plans.logistics].limit;
}

Merch tShirt(const std::string& name) {
  Merch product;
  product.merchOptionId = 3;
  product.category = "Clothing";
  product.subCategory = "T-Shirt";
  product.imageString = "tshirt.png";
  product.name = name;
  product.totalCostPerUnit = 4.99;
  product.totalCost = 99'900;
  product.pricePerUnit = product.salePricePerUnit = 24.99;
  product.startingInventory = product.remainingInventory = 10'000;
  product.popularity = 0.5;
  product.yearLaunched = 2023;
  product.weekLaunched = 1;
  product.weeksToManufacture = 1;
  product.weeksToShip = 1;
  product.transactionFees = 0.025;
  product.energyCost = 1;
  product.artistPercentage = 100;
  return product;
}

int64_t stock(GameState& state, Merch product) {
  product.merchId = ++state.merchId;
  if (product.isRetired == 0) state.merchEnergyCost += product.energyCost;
  state.saveAllMerchReleasedList.append(std::move(product));
  return state.merchId;
}

void addSale(GameState& state, int64_t merchId, int64_t absoluteWeek, int64_t units) {
  const Merch& product = state.saveAllMerchReleasedList[*productPosition(state, merchId)];
  MerchWeeklySales row;
  row.merchId = merchId;
  row.merchName = product.name;
  row.unitsSold = units;
  row.merchGross = static_cast<double>(units) * product.pricePerUnit;
  row.merchTransactionFees = row.merchGross * product.transactionFees;
  row.weekNumber = (absoluteWeek - 1) % 52 + 1;
  row.yearNumber = 2023 + (absoluteWeek - 1) / 52;
  row.weekNumberForTracking = absoluteWeek;
  state.saveAllMerchWeeklySales.append(row);
}

}  // namespace backbeat
