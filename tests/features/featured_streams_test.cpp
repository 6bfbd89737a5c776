#include "features/featured_streams.h"

#include <gtest/gtest.h>

#include "features/builders.h"
#include "features/news.h"
#include "music/chart.h"
#include "support/dates.h"
#include "support/world.h"

namespace backbeat {
namespace {

/// A week in which a number one takes twelve million streams and the last place three.
struct ChartWeek : World {
  ChartWeek() {
    setDate(state, 100);
    state.myArtistsName = "Mara Voss";
    game.turn.firstPlaceChartPosition = 12'000'000;
    game.turn.lastPlaceChartPosition = 3'000'000;
  }
  const FeaturedOn& verse() const { return state.saveAllFeaturedOnList[0]; }
};

TEST(FeaturedStreams, ALaunchWeekStreamsToTheReachOfItsMarketingAlone) {
  ChartWeek world;
  world.state.totalFans = 5'000'000;
  FeaturedOn verse = newVerse(world.state, 7, "Borrowed Time");
  verse.marketingScore = 41.75;  // reaches 10,000
  verse.productionRating = 50.5;
  verse.percentageOfEarnings = 0.13;
  addVerse(world.state, verse);
  world.settle();

  simulateFeaturedOnStreams(world.game);

  EXPECT_EQ(world.verse().totalListen, 1'515);  // 3 / 10 * 10,000 * 50.5 %
  EXPECT_DOUBLE_EQ(world.verse().marketingScore, 39.75);
  EXPECT_DOUBLE_EQ(world.verse().viralityScore, 14);
  ASSERT_EQ(world.state.saveAllFeaturedOnWeeklySongListens.size(), 1u);
  const FeaturedOnWeeklySongListens& week = world.state.saveAllFeaturedOnWeeklySongListens[0];
  EXPECT_EQ(week.songListens, 1'515);
  EXPECT_EQ(week.artistName, "Dex Monarch");
  EXPECT_DOUBLE_EQ(week.totalStreamRevenue, 0.196) << "0.19695, cut";
  EXPECT_TRUE(world.state.saveAllBillboardSongList.empty());
}

TEST(FeaturedStreams, AfterTheMarketingTheTotalFeedsItselfUntilTheRatingIsLivedThrough) {
  ChartWeek world;
  FeaturedOn verse = newVerse(world.state, 7, "Borrowed Time");
  verse.marketingScore = 0;
  verse.totalListen = 1'000'000;
  addVerse(world.state, verse);
  verse.songId = 8;
  verse.totalListen = 700;  // 1.75 streams
  addVerse(world.state, verse);
  verse.songId = 9;
  verse.releaseWeek = 50;  // fifty weeks for a rating of 50
  verse.totalListen = 1'000'000;
  addVerse(world.state, verse);
  verse.songId = 10;
  verse.releaseWeek = 51;
  addVerse(world.state, verse);
  verse.songId = 11;
  verse.marketingScore = -1;
  addVerse(world.state, verse);
  world.settle();

  simulateFeaturedOnStreams(world.game);

  std::vector<int64_t> totals;
  for (const FeaturedOn& each : world.state.saveAllFeaturedOnList) totals.push_back(each.totalListen);
  EXPECT_EQ(totals, (std::vector<int64_t>{1'002'500, 701, 1'000'000, 1'000'050, 1'000'000}));
  EXPECT_EQ(world.state.saveAllFeaturedOnWeeklySongListens.size(), 2u) << "less than two streams leave no record";
}

TEST(FeaturedStreams, AHitChartsUnderItsOwnKindOfIdAndLeavesTheChart) {
  ChartWeek world;
  FeaturedOn hit = newVerse(world.state, 7, " Borrowed Time ");
  hit.viralityScore = 100;  // 243 times
  hit.marketingScore = 95;  // reaches 500,000
  hit.productionRating = 80;
  addVerse(world.state, hit);
  world.game.turn.before.absoluteWeek = 100;
  world.settle();

  simulateFeaturedOnStreams(world.game);

  ASSERT_EQ(world.state.saveAllBillboardSongList.size(), 1u);
  const BillboardSong& row = world.state.saveAllBillboardSongList[0];
  EXPECT_EQ(row.songId, 10'000'007);
  EXPECT_EQ(row.songTitle, "Borrowed Time");
  EXPECT_EQ(row.songFeature, "Mara Voss");
  EXPECT_EQ(row.rankThisWeek, 19);  // 9,720,000 of 12,000,000
  EXPECT_EQ(world.verse().chartRanking, 19);
  std::vector<News> news;
  addFeaturesNews(world.game, news);
  ASSERT_EQ(news.size(), 2u) << "the first verse came out and charted in one week";
  EXPECT_EQ(news[0].key, "verse");
  EXPECT_EQ(news[1].key, "verse chart entry");
  EXPECT_EQ(news[1].kind, News::Kind::first);

  world.game.turn.lastPlaceChartPosition = 11'000'000;
  world.game.turn.before.absoluteWeek = 101;
  world.state.weekNumberForTracking = 101;
  world.settle();
  simulateFeaturedOnStreams(world.game);
  EXPECT_EQ(row.rankThisWeek, 10'001'007);
  EXPECT_FALSE(row.isOnCharts);
  EXPECT_EQ(world.verse().chartRanking, 0);
  news.clear();
  addFeaturesNews(world.game, news);
  EXPECT_TRUE(news.empty());
}

}  // namespace
}  // namespace backbeat
