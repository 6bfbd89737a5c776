#include "video/weekly_views.h"

#include <gtest/gtest.h>

#include "core/news.h"
#include "support/world.h"
#include "video/builders.h"
#include "video/news.h"

namespace backbeat {
namespace {

/// What likes and comments draw.
void reactions(World& world, double likes, double comments) {
  world.random.doubleIs(0.01, 0.07, likes).doubleIs(0.001, 0.0035, comments);
}

TEST(VideoViews, ALaunchWeekIsSeenBySubscribersAndByWhomTheMarketingReaches) {
  World world;
  world.state.youVideoSubscriberCount = 9'900;
  world.state.weekNumberForTracking = 3;
  MusicVideo video = videoOf(world.state, 12);
  video.viewBonus = 0.5;
  video.percentageOfEarnings = 0.5;
  video.viralityScore = 3;
  video.marketingScore = 1;
  addVideo(world.state, video, 2);
  video.viralityScore = 20;
  video.productionRating = 50.02;
  addVideo(world.state, video, 2);
  world.settle();
  reactions(world, 0.07, 0.0035);
  reactions(world, 0.01, 0.001);

  simulateWeeklyVideoViews(world.game);

  const MusicVideo& after = world.state.saveAllMusicVideoList[0];
  EXPECT_EQ(after.videoId, 3) << "the pass runs in the order of virality";
  EXPECT_EQ(after.totalViews, 750);  // 0.5 * 50.02 % * 0.3 * 10,000
  EXPECT_EQ(after.likes, 52);
  EXPECT_EQ(after.comments, 2);
  EXPECT_DOUBLE_EQ(after.viralityScore, 16);
  EXPECT_DOUBLE_EQ(after.marketingScore, 0);
  EXPECT_DOUBLE_EQ(world.state.saveAllMusicVideoList[1].viralityScore, 0);
  ASSERT_EQ(world.state.saveAllWeeklyVideoViews.size(), 2u);
  EXPECT_EQ(world.state.saveAllWeeklyVideoViews[0].videoViews, 750);
  EXPECT_NEAR(world.state.saveAllWeeklyVideoViews[0].totalViewRevenue, 1.87575, 1e-12) << "not rounded";
}

TEST(VideoViews, AResidualWeekIsAShareOfAllViewsByTheLifeThatIsLeft) {
  World world;
  world.state.weekNumberForTracking = 11;
  MusicVideo video = videoOf(world.state, 12);
  video.marketingScore = 0;
  video.viewBonus = 1.5;
  video.totalViews = 10'001;
  addVideo(world.state, video, 10);  // 40 weeks left
  video.totalViews = 900;
  addVideo(world.state, video, 10);
  world.settle();
  reactions(world, 0.07, 0.0035);

  simulateWeeklyVideoViews(world.game);

  EXPECT_EQ(world.state.saveAllMusicVideoList[0].totalViews, 10'031);  // 1.5 * 20.002
  EXPECT_EQ(world.state.saveAllMusicVideoList[0].likes, 2);
  EXPECT_DOUBLE_EQ(world.state.saveAllMusicVideoList[0].viralityScore, 20) << "no drift in this phase";
  ASSERT_EQ(world.state.saveAllWeeklyVideoViews.size(), 1u);
  EXPECT_DOUBLE_EQ(world.state.saveAllWeeklyVideoViews[0].totalViewRevenue, 0.15);
  EXPECT_EQ(world.state.saveAllMusicVideoList[1].totalViews, 902) << "below two it counts, and leaves no row";
}

TEST(VideoViews, EndWithTheLifeAndBeforeAReleaseNeverBegin) {
  World world;
  world.state.weekNumberForTracking = 51;
  addVideo(world.state, videoOf(world.state, 12), 50);
  MusicVideo hidden = videoOf(world.state, 15);
  hidden.isReleased = false;
  addVideo(world.state, hidden);
  MusicVideo worn = videoOf(world.state, 18);
  worn.marketingScore = -1;
  addVideo(world.state, worn);
  simulateWeeklyVideoViews(world.game);
  EXPECT_TRUE(world.state.saveAllWeeklyVideoViews.empty());
}

TEST(VideoViews, SubscribersWhoTurnedAwayTakeViewsBack) {
  World world;
  world.state.youVideoSubscriberCount = -10'100;
  addVideo(world.state, videoOf(world.state, 12));
  reactions(world, 0.05, 0.002);
  simulateWeeklyVideoViews(world.game);
  EXPECT_EQ(world.state.saveAllMusicVideoList[0].totalViews, -1'500);
  EXPECT_EQ(world.state.saveAllMusicVideoList[0].likes, -75);
}

/// The news of a week in which this video had these views.
std::vector<News> newsOfViews(World& world, int64_t before, int64_t views) {
  world.state.saveAllMusicVideoList.update(0, [&](MusicVideo& video) { video.totalViews = before + views; });
  addVideoViews(world.state, world.state.saveAllMusicVideoList[0], 1, views);
  world.game.turn.before.absoluteWeek = world.state.weekNumberForTracking - 1;
  world.game.turn.before.week = {world.state.weekNumber - 1, world.state.yearNumber};
  std::vector<News> news;
  addVideoNews(world.game, news);
  return news;
}

TEST(VideoNews, TellsTheFirstMillionOnceAndEachVideoInItsWeek) {
  World world;
  world.state.weekNumber = world.state.weekNumberForTracking = 20;
  addVideo(world.state, videoOf(world.state, 12), 9);
  EXPECT_TRUE(newsOfViews(world, 400'000, 599'999).empty());
  ++world.state.weekNumber;
  ++world.state.weekNumberForTracking;
  std::vector<News> news = newsOfViews(world, 999'999, 1);
  ASSERT_EQ(news.size(), 1u);
  EXPECT_EQ(news[0].kind, News::Kind::first);
  EXPECT_EQ(news[0].key, "views 1000000");
  MusicVideo famous = videoOf(world.state, 15);
  famous.totalViews = 20'000'000;
  addVideo(world.state, famous, 8);
  ++world.state.weekNumber;
  ++world.state.weekNumberForTracking;
  news = newsOfViews(world, 2'000'000, 8'000'000);
  ASSERT_EQ(news.size(), 1u);
  EXPECT_EQ(news[0].kind, News::Kind::reached) << "another video had as many";
  ++world.state.weekNumber;
  ++world.state.weekNumberForTracking;
  addVideo(world.state, videoOf(world.state, 18), 1);
  news = newsOfViews(world, 10'000'000, 3);
  ASSERT_EQ(news.size(), 1u);
  EXPECT_EQ(news[0].key, "video");
  EXPECT_EQ(news[0].kind, News::Kind::reached);
}

}  // namespace
}  // namespace backbeat
