#include "music/album_sales.h"

#include <gtest/gtest.h>

#include "music/builders.h"
#include "support/world.h"

namespace backbeat {
namespace {

/// A released album of two songs, rated 40 and 60, with virality 20 and 30.
void addAlbum(World& world, Album album) {
  Song song = releasedSong(12, "One");
  song.albumId = album.albumId;
  song.viralityScore = 20;
  world.state.saveAllSongList.append(song);
  song.songId = 15;
  song.productionRating = 60;
  song.viralityScore = 30;
  world.state.saveAllSongList.append(song);
  album.songCount = 2;
  world.state.saveAllAlbumList.append(album);
}

TEST(AlbumSales, ALaunchWeekSellsEarnsAndLosesMarketing) {
  World world;
  Album album = releasedAlbum(7, "Blue Hour");
  album.marketingScore = 20.9;
  album.percentageOfEarnings = 0.5;
  addAlbum(world, album);
  world.state.totalFans = 10'000;
  world.state.weekNumber = 3;
  world.settle();
  world.game.turn.weeklyMarketingPoolTotal = 99;
  world.random
      .doubleIs(23, 27, 25)  // the mean virality: twice the audience
      .doubleIs(9, 11, 10)
      .doubleIs(0.6, 1.2, 1.0)
      .doubleIs(3, 5, 4);

  simulateWeeklyAlbumSales(world.game);

  // 50 % * (10,000 * 0.18 + 500 * 0.09) * 2 / 10 * 1.0 = 184.5
  const Album& after = world.state.saveAllAlbumList[0];
  EXPECT_EQ(after.albumsSold, 184);
  EXPECT_NEAR(after.marketingScore, 16.9, 1e-9);
  ASSERT_EQ(world.state.saveAllWeeklyAlbumSales.size(), 1u);
  EXPECT_DOUBLE_EQ(world.state.saveAllWeeklyAlbumSales[0].albumRevenue, 92);  // 0.5 * 184 * (3.99 - 2.99)
  EXPECT_EQ(world.state.saveAllWeeklyAlbumSales[0].weekNumber, 3);
  EXPECT_EQ(world.game.turn.weeklyMarketingPoolTotal, 45) << "the pool is opened anew";
  EXPECT_EQ(world.game.turn.weeklyMarketingPoolCount, 1);
}

TEST(AlbumSales, ALaunchWeekWithoutBuyersIsRecordedAndEndsTheLaunch) {
  World world;
  Album album = releasedAlbum(7, "Unheard");
  album.marketingScore = 4;
  album.songCount = 10;  // means divide by what the album counts, not by the songs found
  Song song = releasedSong(12, "One");
  song.albumId = 7;
  song.productionRating = 20;
  world.state.saveAllSongList.append(song);
  world.state.saveAllAlbumList.append(album);
  world.random.doubleIs(23, 27, 25).doubleIs(9, 11, 10).doubleIs(0.6, 1.2, 1.0).doubleIs(3, 5, 4.2);
  simulateWeeklyAlbumSales(world.game);
  EXPECT_DOUBLE_EQ(world.state.saveAllAlbumList[0].marketingScore, 0);
  ASSERT_EQ(world.state.saveAllWeeklyAlbumSales.size(), 1u);
  EXPECT_EQ(world.state.saveAllWeeklyAlbumSales[0].albumSales, 0);
  world.state.weekNumberForTracking = 3;  // two weeks old at a mean rating of 2
  simulateWeeklyAlbumSales(world.game);
  EXPECT_EQ(world.state.saveAllWeeklyAlbumSales.size(), 1u) << "its life is over";
}

TEST(AlbumSales, AResidualWeekIsPaidByTheFractionAndShrinks) {
  World world;
  Album album = releasedAlbum(7, "Afterglow");
  album.marketingScore = 0;
  album.albumsSold = 124'900;
  album.price = 12.99;
  addAlbum(world, album);
  world.state.weekNumberForTracking = 31;  // life 50 - 30 = 20
  world.settle();

  simulateWeeklyAlbumSales(world.game);

  // 20 / 10,000 * 124,900 * 0.5 = 124.9 units
  EXPECT_EQ(world.state.saveAllAlbumList[0].albumsSold, 125'024);
  EXPECT_EQ(world.state.saveAllAlbumList[0].albumAward, 1) << "certified in the same week";
  ASSERT_EQ(world.state.saveAllWeeklyAlbumSales.size(), 1u);
  EXPECT_EQ(world.state.saveAllWeeklyAlbumSales[0].albumSales, 124);
  EXPECT_DOUBLE_EQ(world.state.saveAllWeeklyAlbumSales[0].albumRevenue, 1249);  // 124.9 * 10
  world.expectSaved();

  world.state.saveAllAlbumList.update(0, [](Album& few) {
    few.albumsSold = 999;
    few.albumAward = 5;
  });
  simulateWeeklyAlbumSales(world.game);  // 0.999 units
  EXPECT_EQ(world.state.saveAllWeeklyAlbumSales.size(), 1u);
  EXPECT_EQ(world.state.saveAllAlbumList[0].albumAward, 5) << "a tier never falls";
}

TEST(AlbumSales, PricesInTheGapsHaveAFixedFactor) {
  ScriptedRandom random;
  for (const double price : {2.99, 5.995, 17.995, 100.01}) EXPECT_DOUBLE_EQ(priceFactorFor(random, price), 0.9);
  random.doubleIs(0.6, 1.2, 1).doubleIs(0.3, 0.6, 0.5).doubleIs(0.12, 0.25, 0.2).doubleIs(0.1, 0.2, 0.1);
  for (const double price : {5.99, 6.00, 15.99, 100.00}) priceFactorFor(random, price);
}

TEST(AlbumSales, ReachAndTiersAtTheirEdges) {
  EXPECT_EQ(albumMarketingReachFor(-1), 100);
  EXPECT_EQ(albumMarketingReachFor(11), 500);
  EXPECT_EQ(albumMarketingReachFor(80), 500'000);
  EXPECT_EQ(albumMarketingReachFor(250), 5'000'000);
  EXPECT_EQ(albumMarketingReachFor(251), 100);
  EXPECT_EQ(albumAwardTierFor(124'999), 0);
  EXPECT_EQ(albumAwardTierFor(125'000), 1);
  EXPECT_EQ(albumAwardTierFor(999'999), 3);
  EXPECT_EQ(albumAwardTierFor(10'000'000), 5);
  EXPECT_EQ(albumAwardTierFor(19'999'999'999), 5);
  EXPECT_EQ(albumAwardTierFor(20'000'000'000), 0);
}

}  // namespace
}  // namespace backbeat
