#include "merch/merch_sales.h"

#include <gtest/gtest.h>

#include "merch/builders.h"
#include "merch/news.h"
#include "support/world.h"
#include "turn/weekly_report.h"

namespace backbeat {
namespace {

struct SalesWorld : World {
  explicit SalesWorld(size_t website) {
    state.weekNumberForTracking = state.weekNumber = 30;
    state.totalFans = 5'200'000;
    openShop(state, {.website = website, .manufacturing = 2, .logistics = 2});
    product.transactionFees = state.merchWebsiteTransactionFee / 100;
  }
  /// The week's share of the listeners: 0.01 makes a demand of 1,000.
  void expectShare(double share = 0.01) { random.doubleIs(0.005, 0.015, share); }
  const Merch& first() { return state.saveAllMerchReleasedList[0]; }
  const MerchWeeklySales& row(size_t i) { return state.saveAllMerchWeeklySales[i]; }

  Merch product = tShirt("Static Tee");
};

TEST(MerchSales, ReachTheCashNowAndOnceMoreWithTheAccount) {
  SalesWorld world(0);
  stock(world.state, world.product);
  world.settle();
  world.expectShare();
  sellWeeklyMerch(world.game);
  EXPECT_EQ(world.row(0).unitsSold, 500);
  const double net = 500 * 24.99 * (1 - 0.025);
  EXPECT_DOUBLE_EQ(world.state.totalCashAvailable, net);
  EXPECT_EQ(world.first().remainingInventory, 9'500);
  EXPECT_EQ(world.first().totalUnitsSold, 500);
  EXPECT_DOUBLE_EQ(world.first().totalRevenue, 500 * 24.99);
  EXPECT_DOUBLE_EQ(world.first().totalCost, 99'900 + 500 * 24.99 * 0.025);
  world.state.weekNumber += 1;
  world.state.weekNumberForTracking += 1;
  world.state.saveAllWeeklyLineItems.clear();
  world.settle();
  WeeklyReport report = buildWeeklyReport(world.game);
  settleWeeklyCash(world.game, report);
  EXPECT_NEAR(world.state.totalCashAvailable, 2 * net - 50, 1e-6) << "less the basic needs";
  EXPECT_EQ(report.merchUnits, 500);
}

TEST(MerchSales, WhatIsNotOnTheShelfLeavesNoRow) {
  SalesWorld world(0);
  Merch retired = world.product;
  retired.isRetired = 1;
  stock(world.state, retired);
  Merch gone = world.product;
  gone.remainingInventory = 0;
  stock(world.state, gone);
  Merch young = world.product;
  young.weekLaunched = 27;  // two weeks to make, one to ship
  young.weeksToManufacture = 2;
  stock(world.state, young);
  Merch disliked = world.product;
  disliked.popularity = 0;
  const int64_t dislikedId = stock(world.state, disliked);
  world.settle();
  world.expectShare();
  sellWeeklyMerch(world.game);
  ASSERT_EQ(world.state.saveAllMerchWeeklySales.size(), 1u);
  EXPECT_EQ(world.row(0).merchId, dislikedId);
  EXPECT_EQ(world.row(0).unitsSold, 0);
  world.state.weekNumberForTracking = world.state.weekNumber = 31;
  world.settle();
  world.expectShare();
  sellWeeklyMerch(world.game);
  EXPECT_EQ(world.row(1).merchId, 3) << "the fourth week after its launch";
}

TEST(MerchSales, SeatsAddToTheDemandOfAllThatFollow) {
  SalesWorld world(1);
  world.state.onTour = 1;
  world.game.turn.seatsSoldOnTourForMerch = 10'000;
  Merch online = world.product;
  online.transactionFees = 0.025;
  stock(world.state, world.product);
  stock(world.state, online);
  stock(world.state, world.product);
  Merch premium = world.product;
  premium.transactionFees = 0.035;
  stock(world.state, premium);
  world.settle();
  world.expectShare();
  sellWeeklyMerch(world.game);
  EXPECT_EQ(world.row(0).unitsSold, 650);  // 1,000 and 0.01 * 3 * 10,000
  EXPECT_EQ(world.row(0).onTour, 1);
  EXPECT_EQ(world.row(1).unitsSold, 650);
  EXPECT_EQ(world.row(1).onTour, 0);
  EXPECT_EQ(world.row(2).unitsSold, 800);
  EXPECT_EQ(world.row(3).unitsSold, 800);
  EXPECT_EQ(world.row(3).onTour, 0) << "made under the dearest plan";
}

TEST(MerchSales, WhatRunsOutUnderTheDearestPlanIsSoldForMoreAndBoasts) {
  SalesWorld world(2);
  world.product.startingInventory = 490;
  world.product.remainingInventory = 400;
  stock(world.state, world.product);
  world.settle();
  world.expectShare();
  world.random.doubleIs(0, 57, 20.5).doubleIs(0.005, 0.02, 0.01).doubleIs(0.05, 0.2, 0.1).doubleIs(0.05, 0.2, 0.1);
  sellWeeklyMerch(world.game);
  EXPECT_EQ(world.first().minutesToSellOut, 38);
  EXPECT_DOUBLE_EQ(world.row(0).merchGross, 1.25 * 24.99 * 400) << "500 wanted them";
  EXPECT_EQ(world.row(0).unitsSold, 400);
  EXPECT_EQ(world.first().remainingInventory, 0);
  const Chirp& chirp = world.state.saveAllChirpList[0];
  EXPECT_EQ(chirp.message, "SOLD OUT in 38 minutes 🔥 Static Tee");
  EXPECT_EQ(chirp.likeCount, 52'000) << "the listeners saw it, not the followers";
}

TEST(MerchSales, ASellOutOfARestHasADrawnPriceAndDoesNotBoast) {
  SalesWorld world(2);
  world.product.remainingInventory = 100;
  stock(world.state, world.product);
  world.settle();
  world.expectShare();
  world.random.doubleIs(0, 57, 57).doubleIs(2.05, 3.5, 3);  // 500 wanted 100
  sellWeeklyMerch(world.game);
  EXPECT_DOUBLE_EQ(world.row(0).merchGross, 3 * 24.99 * 100);
  EXPECT_EQ(world.first().minutesToSellOut, 0);
  EXPECT_TRUE(world.state.saveAllChirpList.empty());
}

TEST(MerchSales, OtherPlansSellOutAtThePriceTheyHave) {
  SalesWorld world(1);
  world.product.remainingInventory = 100;
  stock(world.state, world.product);
  world.settle();
  world.expectShare();
  sellWeeklyMerch(world.game);
  EXPECT_DOUBLE_EQ(world.row(0).merchGross, 24.99 * 100);
}

TEST(MerchSales, TheFirstProductAndTheFirstSellOutAreNewsOnce) {
  SalesWorld world(0);
  world.product.weekLaunched = 30;
  stock(world.state, world.product);
  const auto newsOfWeek = [&](int64_t week) {
    world.game.turn.before.week = {week, world.state.yearNumber};
    world.game.turn.before.absoluteWeek = week;
    std::vector<News> news;
    addMerchNews(world.game, news);
    return news;
  };
  ASSERT_EQ(newsOfWeek(30).size(), 1u);
  EXPECT_EQ(newsOfWeek(30)[0].key, "product");
  EXPECT_TRUE(newsOfWeek(31).empty());
  world.state.saveAllMerchReleasedList.update(0, [](Merch& product) {
    product.remainingInventory = 0;
    product.totalUnitsSold = 10'000;
  });
  addSale(world.state, 1, 40, 700);
  const std::vector<News> first = newsOfWeek(40);
  ASSERT_EQ(first.size(), 1u);
  EXPECT_EQ(first[0].kind, News::Kind::first);
  EXPECT_EQ(first[0].stamp, "SOLD OUT");
  EXPECT_TRUE(newsOfWeek(41).empty()) << "it is still sold out";
  world.state.saveAllMerchReleasedList.update(0, [](Merch& product) { product.reorderCount = 1; });
  EXPECT_EQ(newsOfWeek(40).at(0).kind, News::Kind::reached);
}

}  // namespace
}  // namespace backbeat
