#include "wealth/real_estate.h"

#include <gmock/gmock.h>

#include "support/dates.h"
#include "support/world.h"
#include "wealth/builders.h"
#include "wealth/real_estate_index.h"

namespace backbeat {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

const Property& modernMagic() { return *propertyWithId(5004); }

TEST(RealEstate, ABoughtHomeIsPaidTaxedAndNotListedAgain) {
  World world;
  GameState& state = world.state;
  state.totalCashAvailable = 8'000'000;
  state.totalEnergyAvailable = 80;
  state.realEstateIndex = 1.05;
  world.settle();
  EXPECT_THAT(askToBuyProperty(state, modernMagic(), {}).alerts[0].message,
              HasSubstr("Property Tax\n $1,442/wk\n\nIf you decide to sell this property, a 6% transaction fee"));
  EXPECT_TRUE(buyProperty(world.game, modernMagic()).done());
  EXPECT_DOUBLE_EQ(state.totalCashAvailable, 500'000);
  EXPECT_EQ(state.totalEnergyAvailable, 5);
  const InvestmentProperty& home = state.saveAllInvestmentPropertyList[0];
  EXPECT_DOUBLE_EQ(home.realEstateIndex, 1.05);
  EXPECT_EQ(home.propertyTax, 1'442);
  const WeeklyLineItem& tax = state.saveAllWeeklyLineItems.back();
  EXPECT_EQ(tax.typeOfExpense, 7'004);
  EXPECT_DOUBLE_EQ(tax.amount, 75'000.0 / 52);
  EXPECT_TRUE(tax.isExpense);
  EXPECT_EQ(listedProperties(state).size(), 26u);
  EXPECT_TRUE(buyProperty(world.game, modernMagic()).done()) << "a second press buys nothing";
  EXPECT_EQ(state.saveAllInvestmentPropertyList.size(), 1u);
}

TEST(RealEstate, IsRefusedForEnergyBeforeCash) {
  World world;
  world.state.totalEnergyAvailable = 74;
  world.settle();
  EXPECT_EQ(buyProperty(world.game, modernMagic()).result, Result::noEnergy);
  world.state.totalEnergyAvailable = 75;
  world.settle();
  EXPECT_EQ(buyProperty(world.game, modernMagic()).result, Result::noCash);
}

TEST(RealEstate, ASaleMovesByTheDifferenceOfTheIndexesAndPaysTheFee) {
  World world;
  GameState& state = world.state;
  ownHome(state, 5004, 0.9, 2023);
  ownHome(state, 5010, 1.2, 2023);
  state.realEstateIndex = 1.2;
  state.totalCashAvailable = 0;
  state.totalEnergyAvailable = 150;
  world.settle();
  const std::string question = askToSellProperty(state, 5004, {}).alerts[0].message;
  EXPECT_THAT(question, HasSubstr("You are listing Modern Magic in Los Angeles, CA"));
  EXPECT_THAT(question, HasSubstr("$7,500,000\n\nEstimate\n$9,750,000\n\nTransaction Fee (6%)\n-$585,000"));
  EXPECT_THAT(question, HasSubstr("$9,165,000"));
  EXPECT_TRUE(sellProperty(world.game, 5004).done());
  EXPECT_NEAR(state.totalCashAvailable, 9'165'000, 0.01);
  EXPECT_EQ(state.totalEnergyAvailable, 75);
  EXPECT_TRUE(sellProperty(world.game, 5004).done()) << "it is gone";
  EXPECT_EQ(state.totalEnergyAvailable, 75);
  EXPECT_TRUE(sellProperty(world.game, 5010).done());
  EXPECT_NEAR(state.totalCashAvailable, 9'165'000 + 291'000'000, 0.1) << "the fee is lost even where nothing moved";
  EXPECT_TRUE(state.saveAllWeeklyLineItems.empty());
}

TEST(RealEstate, TheIndexStaysInsideItsRange) {
  World world;
  world.settle();
  double& index = world.state.realEstateIndex;
  const auto drift = [&](double from, double by) {
    index = from;
    world.random.doubleIs(-0.01, 0.01, by);
    driftRealEstateIndex(world.game);
    return index;
  };
  EXPECT_DOUBLE_EQ(drift(0.505, -0.005), 0.51);
  EXPECT_DOUBLE_EQ(drift(0.505, -0.004), 0.501);
  EXPECT_DOUBLE_EQ(drift(1.495, 0.005), 1.49);
  EXPECT_DOUBLE_EQ(drift(1.495, 0.004), 1.499);
}

TEST(RealEstate, TheMarketIsKnownWhereHomesWereBought) {
  World world;
  GameState& state = world.state;
  setDate(state, 300);
  ownHome(state, 5004, 0.9, 2024);
  ownHome(state, 5005, 0.95, 2024);
  ownHome(state, 5006, 1.1, 2026);
  state.realEstateIndex = 1.2;
  std::vector<std::pair<int64_t, double>> known;
  for (const KnownIndex& each : knownIndexes(state)) known.emplace_back(each.year, each.index);
  EXPECT_THAT(known, ElementsAre(std::pair(2024, 0.95), std::pair(2026, 1.1), std::pair(state.yearNumber, 1.2)));
}

}  // namespace
}  // namespace backbeat
