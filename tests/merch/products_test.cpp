#include "merch/products.h"

#include <gtest/gtest.h>

#include "merch/builders.h"
#include "merch/screens/admin_merch_view_controller.h"
#include "support/world.h"

namespace backbeat {
namespace {

struct SoldOutWorld : World {
  SoldOutWorld() {
    state.weekNumberForTracking = state.weekNumber = 30;
    openShop(state, {.website = 2, .manufacturing = 1, .logistics = 2});
    Merch product = tShirt("Static Tee");
    product.startingInventory = 20'000;
    product.remainingInventory = 0;
    stock(state, product);
    state.totalCashAvailable = 150'000;
    state.totalEnergyAvailable = 60;
    settle();
  }
  const Merch& product() { return state.saveAllMerchReleasedList[0]; }
  AdminMerchViewController screen{game, 1};
};

TEST(Products, MoreIsOrderedUnderThePlansOfToday) {
  SoldOutWorld world;
  const Outcome question = world.screen.act({"restockButton", ""});
  EXPECT_EQ(question.result, Result::asked);
  EXPECT_EQ(
      question.alerts.at(0).message,
      "\nPlace another order - details are below:\n\nINVENTORY\n20,000\n\nPRICE PER UNIT:\n$4.99.\n\nAre you sure "
      "you want to restock Static Tee?");
  EXPECT_EQ(world.state.totalEnergyAvailable, 35) << "the question costs, whatever the answer";
  EXPECT_TRUE(world.screen.act({"restock", ""}).done());
  EXPECT_DOUBLE_EQ(world.state.totalCashAvailable, 150'000 - 20'000 * 4.99);
  EXPECT_DOUBLE_EQ(world.product().totalCost, 99'900 + 20'000 * 4.99);
  EXPECT_EQ(world.product().remainingInventory, 20'000);
  EXPECT_EQ(world.product().weekReordered, 30);
  EXPECT_EQ(world.product().reorderCount, 1);
  EXPECT_EQ(world.product().weeksToManufacture, 4);
  EXPECT_EQ(world.product().weeksToShip, 1);
  EXPECT_DOUBLE_EQ(world.product().transactionFees, 0.035);
  EXPECT_EQ(weeksUntilOnSale(world.state, world.product()), 0) << "it was launched long ago";
  world.screen.act({"restock", ""});
  EXPECT_EQ(world.product().reorderCount, 1) << "an answer without a question";
}

TEST(Products, AnOrderThatCannotBePaidKeepsTheEnergy) {
  SoldOutWorld world;
  world.state.totalCashAvailable = 99'799;
  world.settle();
  world.screen.act({"restockButton", ""});
  EXPECT_EQ(world.screen.act({"restock", ""}).result, Result::noCash);
  EXPECT_EQ(world.state.totalEnergyAvailable, 35);
  EXPECT_EQ(world.product().remainingInventory, 0);
}

TEST(Products, WhatIsLeftIsSoldToWhoOffersAndTheEnergyComesBackEachWeek) {
  SoldOutWorld world;
  world.state.saveAllMerchReleasedList.update(0, [](Merch& product) { product.remainingInventory = 1'200; });
  world.settle();
  world.random.doubleIs(0.10, 0.75, 0.5);
  const Outcome question = world.screen.act({"retireButton", ""});
  EXPECT_EQ(question.alerts.at(0).message,
            "\nYou received an offer for the remaining inventory:\n\nINVENTORY\n1,200\n\nPRICE PER UNIT\n$2.50\n\nAre "
            "you sure you want to retire Static Tee");
  EXPECT_EQ(world.state.totalEnergyAvailable, 10);
  EXPECT_TRUE(world.screen.act({"retire", ""}).done());
  EXPECT_DOUBLE_EQ(world.state.totalCashAvailable, 150'000 + 1'200 * 4.99 * 0.5);
  EXPECT_EQ(world.product().isRetired, 1);
  EXPECT_EQ(world.product().remainingInventory, 0);
  EXPECT_EQ(world.state.merchEnergyCost, 0);
  EXPECT_EQ(activeProducts(world.state), 0);
}

TEST(Products, ThoseWhoAreTiredOrSaidNoKeepTheirProduct) {
  SoldOutWorld world;
  world.screen.act({"retireButton", ""});
  world.screen.act({"showOnSpotify", "1"});  // the question was answered with No
  world.screen.act({"retire", ""});
  EXPECT_EQ(world.product().isRetired, 0);
  EXPECT_EQ(world.state.totalEnergyAvailable, 10);
  EXPECT_EQ(world.screen.act({"retireButton", ""}).result, Result::noEnergy);
  EXPECT_EQ(world.screen.act({"restockButton", ""}).result, Result::noEnergy);
  EXPECT_EQ(world.state.totalEnergyAvailable, 10);
}

TEST(Products, ALimitedEditionIsNeverMadeAgain) {
  SoldOutWorld world;
  world.state.saveAllMerchReleasedList.update(0, [](Merch& product) { product.limitedEdition = 1; });
  world.settle();
  EXPECT_EQ(productStanding(world.state, world.product()), "0 units for sale • Sold out (limited edition)");
  EXPECT_TRUE(world.screen.act({"restockButton", ""}).alerts.empty());
  EXPECT_EQ(world.state.totalEnergyAvailable, 60);
}

}  // namespace
}  // namespace backbeat
