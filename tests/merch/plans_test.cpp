#include "merch/plans.h"

#include <gtest/gtest.h>

#include "merch/builders.h"
#include "support/world.h"

namespace backbeat {
namespace {

std::vector<std::string> titlesIn(const GameState& state) {
  std::vector<std::string> titles;
  for (const WeeklyLineItem& item : state.saveAllWeeklyLineItems) titles.push_back(item.title);
  return titles;
}

TEST(MerchPlans, APlanIsChargedWeeklyAndBindsTheShop) {
  World world;
  world.settle();
  EXPECT_EQ(serviceTerms(world.state, merchWebsite), "No Website Setup");
  EXPECT_TRUE(chooseMerchPlan(world.game, merchWebsite, 1).done());
  EXPECT_TRUE(chooseMerchPlan(world.game, merchManufacturing, 1).done());
  EXPECT_TRUE(chooseMerchPlan(world.game, merchLogistics, 2).done());
  EXPECT_EQ(titlesIn(world.state),
            (std::vector<std::string>{"Website (Touring)", "Manufacturing (Silver)", "Logistics (Large)"}));
  EXPECT_DOUBLE_EQ(world.state.saveAllWeeklyLineItems[2].amount, 1'999);
  EXPECT_DOUBLE_EQ(world.state.totalCashAvailable, 0) << "nothing is paid before the settlement";
  EXPECT_EQ(serviceTerms(world.state, merchWebsite), "2.9% Transaction Fee + Onsite Terminals");
  EXPECT_EQ(serviceTerms(world.state, merchManufacturing), "14 days per 10,000 units");
  EXPECT_EQ(serviceTerms(world.state, merchLogistics), "7 days");
  EXPECT_EQ(world.state.maxMerchProducts, 7);
  EXPECT_EQ(world.state.maxMerchCapacity, 1'000'000);
}

TEST(MerchPlans, TheTouringWebsiteHasAnotherTitleWhenItReplacesOne) {
  World world;
  world.settle();
  chooseMerchPlan(world.game, merchWebsite, 2);
  EXPECT_EQ(serviceTerms(world.state, merchWebsite), "3.5% Transaction Fee + Dynamic Pricing");
  chooseMerchPlan(world.game, merchWebsite, 1);
  EXPECT_EQ(titlesIn(world.state), std::vector<std::string>{"Website (Dynamic)"});
  EXPECT_DOUBLE_EQ(world.state.merchWebsiteTransactionFee, 2.9);
  EXPECT_EQ(currentPlan(world.state, merchWebsite), 1u) << "found by its price, whatever it is called";
  chooseMerchPlan(world.game, merchWebsite, 1);
  EXPECT_EQ(titlesIn(world.state), std::vector<std::string>{"Website (Dynamic)"}) << "the current plan stays";
}

TEST(MerchPlans, ASmallerPlanHasToHoldWhatThereIs) {
  World world;
  openShop(world.state, {.manufacturing = 1, .logistics = 1});
  for (int i = 0; i < 7; ++i) stock(world.state, tShirt("Tee " + std::to_string(i)));
  world.settle();
  EXPECT_EQ(chooseMerchPlan(world.game, merchManufacturing, 0).result, Result::refused);
  EXPECT_EQ(chooseMerchPlan(world.game, merchLogistics, 0).result, Result::refused) << "70,000 units";
  for (size_t i = 0; i < 5; ++i) {
    world.state.saveAllMerchReleasedList.update(i, [](Merch& product) { product.isRetired = 1; });
  }
  world.settle();
  EXPECT_TRUE(chooseMerchPlan(world.game, merchManufacturing, 0).done());
  EXPECT_TRUE(chooseMerchPlan(world.game, merchLogistics, 0).done());
  EXPECT_EQ(world.state.weeksToManufactureMerch, 3);
  EXPECT_EQ(world.state.weeksToShipMerch, 2);
}

TEST(MerchPlans, CancellingWaitsForTheShelfAndZeroesWhatIsLeftOfAPlan) {
  World world;
  openShop(world.state, {});
  stock(world.state, tShirt("Tee"));
  world.settle();
  EXPECT_EQ(cancelMerchPlan(world.game, merchManufacturing).result, Result::refused);
  world.state.saveAllMerchReleasedList.update(0, [](Merch& product) { product.isRetired = 1; });
  world.state.saveAllWeeklyLineItems.clear();  // as when the charges went without the service
  world.settle();
  EXPECT_TRUE(isSetUp(world.state, merchManufacturing));
  EXPECT_EQ(currentPlan(world.state, merchManufacturing), std::nullopt);
  EXPECT_TRUE(cancelMerchPlan(world.game, merchManufacturing).done());
  EXPECT_EQ(world.state.weeksToManufactureMerch, 0);
  EXPECT_FALSE(isSetUp(world.state, merchManufacturing));
  EXPECT_TRUE(isSetUp(world.state, merchLogistics)) << "the others stand";
}

}  // namespace
}  // namespace backbeat
