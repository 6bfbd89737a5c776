#include "wealth/garage.h"

#include <gmock/gmock.h>

#include "career/lifestyle.h"
#include "support/world.h"
#include "wealth/builders.h"
#include "wealth/net_assets.h"

namespace backbeat {
namespace {

using testing::HasSubstr;

WeeklyLineItem sportsCar() {
  WeeklyLineItem entry;
  entry.title = "SPORTS CAR";
  entry.amount = 450;
  entry.isExpense = true;
  entry.typeOfExpense = expense::transportation;
  entry.energyBoost = 4;
  return entry;
}

TEST(Garage, OnlyWhatDrivesOnRoadsEndsTheLifestyle) {
  World world;
  GameState& state = world.state;
  state.totalEnergyMax = 104;
  state.totalCashAvailable = 2'250'000;
  state.saveAllWeeklyLineItems.append(sportsCar());
  world.settle();
  EXPECT_TRUE(buyVehicle(world.game, *vehicleWithId(7017)).done());
  EXPECT_EQ(state.totalEnergyMax, 105);
  EXPECT_EQ(state.saveAllWeeklyLineItems.size(), 2u);
  EXPECT_TRUE(buyVehicle(world.game, *vehicleWithId(7013)).done());
  EXPECT_EQ(state.totalEnergyMax, 102) << "one more, less the four of the sports car";
  ASSERT_EQ(state.saveAllWeeklyLineItems.size(), 2u);
  EXPECT_EQ(state.saveAllWeeklyLineItems[0].typeOfExpense, 5'017);
  EXPECT_EQ(state.saveAllWeeklyLineItems[1].typeOfExpense, 5'013);
  EXPECT_DOUBLE_EQ(state.saveAllWeeklyLineItems[1].amount, 400);
  EXPECT_DOUBLE_EQ(state.totalCashAvailable, 25'000);
  EXPECT_EQ(state.saveAllTransportationOwnedList[1].imageName, "transport13.png");
  EXPECT_TRUE(buyVehicle(world.game, *vehicleWithId(7013)).done()) << "there is one of each";
  EXPECT_EQ(state.saveAllTransportationOwnedList.size(), 2u);
  EXPECT_EQ(buyVehicle(world.game, *vehicleWithId(7006)).result, Result::noCash);
}

TEST(Garage, ASalePaysTheAgedValueAndChargesADebt) {
  World world;
  GameState& state = world.state;
  state.yearNumber = 2065;
  state.totalCashAvailable = 0;
  ownVehicle(state, 7018, 2061);
  ownVehicle(state, 7002, 2023);
  world.settle();
  EXPECT_THAT(askToSellVehicle(state, 7018, {}).alerts[0].message,
              HasSubstr("You've owned your Private Jet for 4 year(s).\n\nPurchase Price\n$45,000,000"));
  EXPECT_TRUE(sellVehicle(world.game, 7018).done());
  EXPECT_DOUBLE_EQ(state.totalCashAvailable, 40'500'000);
  EXPECT_EQ(state.totalEnergyMax, 100);
  EXPECT_TRUE(sellVehicle(world.game, 7018).done());
  EXPECT_DOUBLE_EQ(state.totalCashAvailable, 40'500'000) << "it is gone";
  EXPECT_TRUE(sellVehicle(world.game, 7002).done());
  EXPECT_DOUBLE_EQ(state.totalCashAvailable, 40'500'000 - 125);
  EXPECT_TRUE(state.saveAllWeeklyLineItems.empty());
}

}  // namespace
}  // namespace backbeat
