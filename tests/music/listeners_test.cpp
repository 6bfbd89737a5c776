#include "music/listeners.h"

#include <gtest/gtest.h>

#include "music/builders.h"
#include "music/screens/monthly_listener_detail_view_controller.h"
#include "support/world.h"

namespace backbeat {
namespace {

TEST(Listeners, ANewSongWinsTheFirstOnes) {
  World world;
  world.state.weekNumberForTracking = 2;
  Song song = releasedSong(12, "First");
  song.productionRating = 30;
  world.state.saveAllSongList.append(song);
  Song unreleased = songInProduction(15, "Next");
  unreleased.productionRating = 90;  // counts neither in the mean nor, behind a released one, as the latest
  world.state.saveAllSongList.append(unreleased);
  world.game.turn.weeklyMarketingPoolTotal = 20'300;
  world.game.turn.weeklyMarketingPoolCount = 2;  // a mean of 10,150: one part in a hundred is 101
  world.settle();
  world.random.doubleIs(0, 3, 2).doubleIs(0.75, 1.25, 1.25).doubleIs(0.3, 0.7, 0.5);
  simulateWeeklyListeners(world.game);
  EXPECT_EQ(world.state.totalFans, 10);  // 30 / 10 * (2 * 1.75)
  EXPECT_EQ(world.game.launch.weeklyFanChange, 10);
  EXPECT_EQ(world.state.followerCount, 12);
  EXPECT_EQ(world.state.youVideoSubscriberCount, 5);
}

TEST(Listeners, SilenceDrivesThemAwayButNeverBelowNobody) {
  World world;
  GameState& state = world.state;
  state.weekNumberForTracking = 108;
  Song song = releasedSong(12, "Old");
  song.releaseWeek = 77;  // 31 weeks: -0.25, and the album of 107 weeks adds nothing
  song.productionRating = 40;
  state.saveAllSongList.append(song);
  state.saveAllAlbumList.append(releasedAlbum(12, "Old"));
  state.totalFans = 5'000;
  state.monthlyListenerData.assign(26, 7);
  world.random.doubleIs(0, 10, 10).doubleIs(0.75, 1.25, 1).doubleIs(0.3, 0.7, 0.5);
  simulateWeeklyListeners(world.game);
  EXPECT_EQ(state.totalFans, 4'990);
  EXPECT_EQ(state.followerCount, -10) << "followers have no floor";
  EXPECT_EQ(state.youVideoSubscriberCount, -5);
  EXPECT_EQ(state.monthlyListenerData.size(), 26u);
  EXPECT_EQ(state.monthlyListenerData.back(), 4'990);

  state.totalFans = 1;
  world.random.doubleIs(0, 2, 2).doubleIs(0.75, 1.25, 1).doubleIs(0.3, 0.7, 0.5);
  simulateWeeklyListeners(world.game);
  EXPECT_EQ(state.totalFans, 1) << "a loss of two would leave fewer than nobody: none goes";
}

TEST(Listeners, OnlySongsOfTheLastTwoYearsAreHeard) {
  World world;
  world.state.weekNumberForTracking = 105;
  world.state.totalFans = 100;
  world.state.saveAllSongList.append(releasedSong(12, "Two years old"));
  world.random.doubleIs(0, 2, 2).doubleIs(0.75, 1.25, 1).doubleIs(0.3, 0.7, 0.5);
  simulateWeeklyListeners(world.game);
  EXPECT_EQ(world.state.totalFans, 100);
  world.state.weekNumberForTracking = 104;  // -0.75 of a rating of 40
  world.random.doubleIs(0, 2, 2).doubleIs(0.75, 1.25, 1).doubleIs(0.3, 0.7, 0.5);
  simulateWeeklyListeners(world.game);
  EXPECT_EQ(world.state.totalFans, 94);
}

TEST(Listeners, TablesChangeAtTheirEdges) {
  EXPECT_EQ(songRecencyFor(-1), -1.25);
  EXPECT_EQ(songRecencyFor(2), 1.75);
  EXPECT_EQ(songRecencyFor(3), 1.25);
  EXPECT_EQ(songRecencyFor(121), -1.25);
  EXPECT_EQ(albumRecencyFor(0), 3.0);
  EXPECT_EQ(albumRecencyFor(107), 0.0);
  EXPECT_EQ(albumRecencyFor(161), -0.5);
  World world;
  const auto top = [&](int64_t fans, double greatest) {
    world.state.totalFans = fans;
    world.random.doubleIs(0, greatest, greatest);
    weeklyFanGainFor(world.game, 0, 1, 10);
  };
  top(100, 2);
  top(101, 3);
  top(10'001, 10);
  top(10'002, 100);
  top(6'000'000'000, 5'000);
  top(6'000'000'001, 14);
}

TEST(MonthlyListenerDetail, TellsTheWeekAndTheHalfYear) {
  World world;
  std::vector<int64_t>& data = world.state.monthlyListenerData;
  data = {500};
  EXPECT_EQ(listenersThisWeek(world.state), "");
  data = {0, 12'000};
  EXPECT_EQ(listenersThisWeek(world.state), "\n12,000 new listeners this week (0.00%)");
  data = {500, 1'600, 1'500};
  EXPECT_EQ(listenersThisWeek(world.state), "\n-100 listeners this week (-6.25%)");
  EXPECT_EQ(listenersInSixMonths(world.state), "1,000 in the past six months");
}

}  // namespace
}  // namespace backbeat
