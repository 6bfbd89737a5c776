#include "wealth/net_assets.h"

#include "core/view_find.h"
#include "support/world.h"
#include "turn/screens/net_worth_view_controller.h"

namespace backbeat {
namespace {

Venture stake(int64_t owned, int64_t outstanding, int64_t valuation, int64_t hasExited) {
  Venture venture;
  venture.totalSharesOwned = owned;
  venture.totalOutstandingShares = outstanding;
  venture.lastValuation = valuation;
  venture.hasExited = hasExited;
  return venture;
}

void furnish(GameState& state) {
  state.yearNumber = 2027;
  state.realEstateIndex = 1.25;
  InvestmentProperty house;
  house.pricePaid = 200'000;
  house.realEstateIndex = 1.0;
  state.saveAllInvestmentPropertyList.append(house);
  Transportation car;
  car.pricePaid = 10'000;
  car.yearPurchased = 2023;
  state.saveAllTransportationOwnedList.append(car);
  state.saveAllVentureInvestments.append(stake(25, 100, 400'000, 0));
  state.saveAllVentureInvestments.append(stake(50, 100, 900'000, 1));
  state.saveAllVentureInvestments.append(stake(0, 0, 900'000, 0));
}

TEST(NetAssets, CountsCashRunningStakesHousesAtTheMarketAndAgedVehicles) {
  World world;
  GameState& state = world.state;
  state.totalCashAvailable = -9'000;
  EXPECT_DOUBLE_EQ(netAssets(state), -9'000);
  furnish(state);
  EXPECT_DOUBLE_EQ(venturesValue(state), 100'000);
  EXPECT_DOUBLE_EQ(propertiesValue(state), 250'000);
  EXPECT_DOUBLE_EQ(transportationValue(state), 9'000);
  EXPECT_DOUBLE_EQ(netAssets(state), 350'000);
  state.yearNumber = 2023 + 44;
  EXPECT_DOUBLE_EQ(transportationValue(state), -1'000) << "there is no floor";
}

TEST(NetAssets, TheScreenSharesOutAFortuneAndSurvivesDebt) {
  World world;
  NetWorthViewController screen(world.game);
  world.state.totalCashAvailable = -100;
  EXPECT_EQ(rowTitled(screen.view(), "Property 0.0%").value, "$0");
  world.state.totalCashAvailable = 141'000;
  furnish(world.state);
  EXPECT_EQ(figureLabelled(screen.view(), "Net worth").value, "$500,000");
  EXPECT_EQ(rowTitled(screen.view(), "Property 50.0%").value, "$250,000");
  EXPECT_EQ(rowTitled(screen.view(), "Garage 1.8%").value, "$9,000");
  EXPECT_EQ(rowTitled(screen.view(), "Venture 20.0%").share, 0.2);
}

}  // namespace
}  // namespace backbeat
