#include "merch/product_launch.h"

#include <gtest/gtest.h>

#include "merch/builders.h"
#include "merch/products.h"
#include "music/builders.h"
#include "support/world.h"

namespace backbeat {
namespace {

const MerchOption& optionNamed(std::string_view name) {
  for (const MerchOption& option : merchCatalogue) {
    if (option.productName == name) return option;
  }
  return merchCatalogue.back();
}

struct ShopWorld : World {
  ShopWorld() {
    openShop(state, {.website = 1, .manufacturing = 1, .logistics = 2});
    state.totalCashAvailable = 2'000'000;
    state.totalFans = 50'000;
    state.virality = 60;
    state.weekNumberForTracking = state.weekNumber = 8;
  }
  /// 20,000 hoodies at ten times their cost... or whatever the test makes of them.
  ProductDraft draft{.option = &optionNamed("Hoody"), .name = "  Lantern Hoody ", .quantity = 20'000, .pricing = 34.99};

  const Merch& launched() {
    EXPECT_TRUE(launchProduct(game, draft).done());
    return state.saveAllMerchReleasedList.back();
  }
};

TEST(ProductLaunch, PaysTheOrderAndStandsOnTheShelfUntilItIsMade) {
  ShopWorld world;
  world.settle();
  world.random.integerIs(0, 60, 35);
  const Merch& product = world.launched();
  EXPECT_EQ(product.name, "Lantern Hoody");
  EXPECT_EQ(product.merchId, 1);
  EXPECT_DOUBLE_EQ(product.totalCost, 20'000 * 8.99 + 90'000);
  EXPECT_DOUBLE_EQ(world.state.totalCashAvailable, 2'000'000 - product.totalCost);
  EXPECT_EQ(world.state.merchEnergyCost, 2);
  EXPECT_EQ(product.weeksToManufacture, 4) << "twice the plan's two weeks";
  EXPECT_EQ(product.weeksToShip, 1);
  EXPECT_EQ(weeksUntilOnSale(world.state, product), 6);
  EXPECT_EQ(productStanding(world.state, product), "20,000 units for sale • Manufacturing (6 weeks)");
  EXPECT_DOUBLE_EQ(product.transactionFees, 2.9 / 100);
  // 35, and 50 - 2 * 34.99 / 8.99 = 42.2
  EXPECT_DOUBLE_EQ(product.popularity, 77.0 / 200);
}

TEST(ProductLaunch, PopularityFollowsViralityEditionPriceAndSongs) {
  ShopWorld world;
  world.draft.option = &optionNamed("Vinyl");
  world.draft.quantity = 10'000;
  world.draft.limitedEdition = true;
  world.draft.pricing = 10 * 14.99;
  Song good = releasedSong(12, "One");
  good.productionRating = 90;
  world.state.saveAllSongList.append(good);
  world.state.saveAllSongList.append(releasedSong(15, "Two"));          // rated 40
  world.state.saveAllSongList.append(songInProduction(18, "Not yet"));  // is not on it
  world.draft.songIds = {15, 12, 18, 99};
  world.game.launch.merchSongs = world.draft.songIds;
  world.settle();
  world.random.integerIs(0, 60, 3);
  const Merch record = world.launched();
  // At least 10, 50 for the edition, 50 - 2 * 10 for the price, and the mean rating.
  EXPECT_DOUBLE_EQ(record.popularity, (10 + 50 + 30 + 65.0) / 300);
  ASSERT_EQ(record.songList.size(), 2u);
  EXPECT_EQ(record.songList[0].title, "Two");
  EXPECT_EQ(record.weeksToManufacture, 2) << "exactly ten thousand keep the plan's weeks";
  EXPECT_TRUE(world.game.launch.merchSongs.empty());
  world.draft.limitedEdition = false;
  world.draft.pricing = 25 * 14.99;
  world.draft.songIds = {12};
  world.random.integerIs(0, 60, 20);
  EXPECT_DOUBLE_EQ(world.launched().popularity, (20 + 90.0) / 300) << "so dear that the price gives nothing";
}

TEST(ProductLaunch, RefusesInItsOrderAndTakesNothing) {
  ShopWorld world;
  world.draft = {.quantity = 1'000'001};
  world.settle();
  const auto title = [&] {
    const Outcome outcome = launchProduct(world.game, world.draft);
    return outcome.alerts.empty() ? "" : outcome.alerts.front().title;
  };
  EXPECT_EQ(title(), "👚 Choose Merch 👕");
  world.draft.option = &optionNamed("Cassette");
  EXPECT_EQ(title(), "💰 Not Enough Cash 💰");
  world.state.totalCashAvailable = 9'000'000;
  world.settle();
  EXPECT_EQ(title(), "🔥 Name Your Product 🔥");
  world.draft.name = "Tape";
  EXPECT_EQ(title(), "👚 Not Enough Capacity 👕");
  world.draft.quantity = 1'000'000;
  EXPECT_EQ(title(), "🎶 Choose Songs 🎶");
  EXPECT_TRUE(world.state.saveAllMerchReleasedList.empty());
  EXPECT_EQ(selectMerchOption(world.state, *world.draft.option).result, Result::done);
  world.state.totalFans = 9'999;
  EXPECT_EQ(selectMerchOption(world.state, *world.draft.option).result, Result::refused);
  world.settle();
}

TEST(ProductLaunch, PricesBeginAboveTheCostAndEndBelowTheLimit) {
  const std::vector<double> prices = pricingOptions(optionNamed("Hoody"));
  EXPECT_DOUBLE_EQ(prices.front(), 9.99);
  EXPECT_DOUBLE_EQ(prices.back(), 44.99);
  EXPECT_EQ(prices.size(), 36u);
}

TEST(ProductLaunch, TheGreatestOrderIsWhatFits) {
  ShopWorld world;
  world.state.maxMerchCapacity = 25'000;
  Merch product = tShirt("Tee");
  product.remainingInventory = 20'300;
  stock(world.state, product);
  EXPECT_EQ(greatestOrder(world.state), 4'000);
  product.remainingInventory = 4'200;
  stock(world.state, product);
  EXPECT_EQ(unitsLeft(world.state), 500);
  EXPECT_EQ(greatestOrder(world.state), 1'000) << "and the launch refuses it";
}

}  // namespace
}  // namespace backbeat
