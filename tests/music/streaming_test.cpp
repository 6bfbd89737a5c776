#include "music/streaming.h"

#include <gtest/gtest.h>

#include "music/builders.h"
#include "music/chart.h"
#include "support/world.h"

namespace backbeat {
namespace {

TEST(Streaming, ALaunchWeekStreamsEarnsAndDrifts) {
  World world;
  world.state.totalFans = 900;
  world.state.weekNumberForTracking = 3;
  Song song = releasedSong(12, "Paper Lanterns");
  song.viralityScore = 20;  // exactly the spread: three times the audience
  song.productionRating = 50;
  song.percentageOfEarnings = 0.5;
  world.state.saveAllSongList.append(song);
  world.settle();
  world.random.integerIs(10'000'000, 15'000'000, 12'000'000)
      .doubleIs(17, 25, 20)
      .doubleIs(9, 11, 10)
      .integerIs(0, 200, 51)  // above the rating: the marketing falls
      .doubleIs(1, 4, 2.5);

  simulateWeeklySongStreams(world.game);

  const Song& after = world.state.saveAllSongList[0];
  EXPECT_EQ(after.totalListen, 150);  // (900 + 100) * 3 / 10 * 50 %
  EXPECT_DOUBLE_EQ(after.marketingScore, 7.5);
  EXPECT_DOUBLE_EQ(after.viralityScore, 14);
  ASSERT_EQ(world.state.saveAllWeeklySongListens.size(), 1u);
  EXPECT_DOUBLE_EQ(world.state.saveAllWeeklySongListens[0].totalStreamRevenue, 0.075);
  EXPECT_EQ(world.game.turn.weeklyMarketingPoolTotal, 300);
  EXPECT_EQ(world.game.turn.weeklyMarketingPoolCount, 1);
}

TEST(Streaming, MarketingOverAHundredFallsTwiceAndEndsAtZero) {
  World world;
  Song strong = releasedSong(12, "Loud");
  strong.marketingScore = 110;
  strong.viralityScore = 9;
  Song fading = releasedSong(15, "Fading");
  fading.marketingScore = 1.5;
  fading.viralityScore = 3;
  world.state.saveAllSongList.append(fading);
  world.state.saveAllSongList.append(strong);
  world.random.integerIs(10'000'000, 15'000'000, 10'000'000)
      .doubleIs(17, 25, 18)
      .doubleIs(9, 11, 9)
      .integerIs(0, 200, 200)
      .doubleIs(1, 4, 4)
      .doubleIs(5, 10, 10)
      .doubleIs(17, 25, 18)
      .doubleIs(9, 11, 9)
      .integerIs(0, 200, 200)
      .doubleIs(1, 4, 2);

  simulateWeeklySongStreams(world.game);

  EXPECT_EQ(world.state.saveAllSongList[0].title, "Loud") << "the pass runs in the order of virality";
  EXPECT_DOUBLE_EQ(world.state.saveAllSongList[0].marketingScore, 96);
  EXPECT_DOUBLE_EQ(world.state.saveAllSongList[1].marketingScore, 0);
  EXPECT_DOUBLE_EQ(world.state.saveAllSongList[1].viralityScore, 0);
}

TEST(Streaming, AResidualWeekIsAPartOfTheLastRecordedOne) {
  World world;
  Song song = releasedSong(12, "Afterglow");
  song.marketingScore = 0;
  song.totalListen = 500;
  world.state.saveAllSongList.append(song);
  Song unheard = releasedSong(15, "Unheard");
  unheard.marketingScore = 0;
  unheard.viralityScore = 1;
  world.state.saveAllSongList.append(unheard);
  WeeklySongListens week;
  week.songId = 12;
  week.songListens = 90;
  world.state.saveAllWeeklySongListens.append(week);
  world.settle();
  world.random.integerIs(10'000'000, 15'000'000, 10'000'000).integerIs(0, 90, 1);

  simulateWeeklySongStreams(world.game);
  EXPECT_EQ(world.state.saveAllSongList[0].totalListen, 501);
  EXPECT_EQ(world.state.saveAllWeeklySongListens.size(), 1u) << "a week of one stream leaves no record";
  EXPECT_DOUBLE_EQ(world.state.saveAllSongList[0].viralityScore, 5) << "no drift in this phase";

  world.random.integerIs(10'000'000, 15'000'000, 10'000'000).integerIs(0, 90, 40);
  simulateWeeklySongStreams(world.game);
  ASSERT_EQ(world.state.saveAllWeeklySongListens.size(), 2u);
  EXPECT_EQ(world.state.saveAllWeeklySongListens[1].songListens, 40);
  EXPECT_DOUBLE_EQ(world.state.saveAllWeeklySongListens[1].totalStreamRevenue, 0.04);
}

TEST(Streaming, ASongStreamsForAsManyWeeksAsItsRating) {
  World world;
  Song song = releasedSong(12, "Short");
  song.productionRating = 5;
  song.marketingScore = 0;
  song.chartRanking = 7;
  world.state.saveAllSongList.append(song);
  world.state.weekNumberForTracking = 6;  // released in week 1: five weeks old
  world.random.integerIs(10'000'000, 15'000'000, 10'000'000);
  simulateWeeklySongStreams(world.game);
  EXPECT_EQ(world.state.saveAllSongList[0].chartRanking, 7) << "a song that dies on the chart keeps its place";
  EXPECT_FALSE(remainingLife(world.state, world.state.saveAllSongList[0]) > 0);
}

TEST(Streaming, ReachFallsBackToTheBottomPast250) {
  EXPECT_EQ(marketingReachFor(-3), 100);
  EXPECT_EQ(marketingReachFor(10), 100);
  EXPECT_EQ(marketingReachFor(11), 300);
  EXPECT_EQ(marketingReachFor(90), 250'000);
  EXPECT_EQ(marketingReachFor(91), 500'000);
  EXPECT_EQ(marketingReachFor(250), 500'000);
  EXPECT_EQ(marketingReachFor(251), 100);
}

}  // namespace
}  // namespace backbeat
