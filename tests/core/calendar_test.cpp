#include "core/calendar.h"

#include <gtest/gtest.h>

#include "music/builders.h"
#include "recognition/leaderboards.h"
#include "support/world.h"

namespace backbeat {
namespace {

TEST(Calendar, AYearCostsAPointOfCeilingDownTo25) {
  World world;
  world.state.weekNumber = 52;
  world.state.totalEnergyMax = 26;
  world.settle();
  stateChanged(world.game);
  EXPECT_EQ(world.state.weekNumber, 52);
  for (const int64_t ceiling : {25, 25}) {
    world.state.weekNumber = 53;
    stateChanged(world.game);
    stateChanged(world.game);
    EXPECT_EQ(world.state.weekNumber, 1);
    EXPECT_EQ(world.state.totalEnergyMax, ceiling);
  }
  EXPECT_EQ(world.state.yearNumber, 2025);
}

TEST(Leaderboards, PassOnceInWeeks24And48InTheirOrder) {
  World world;
  GameState& state = world.state;
  world.game.leaderboardPass = submitLeaderboards;
  state.totalFans = 900;
  state.totalFanHighScore = 1'000;
  Song song = releasedSong(12, "Known");
  song.totalListen = 5'000;
  state.saveAllSongList.append(song);
  BillboardSong one;
  one.peakPosition = 1;
  one.weeksOnChart = 9;
  BillboardSong two;
  two.peakPosition = 2;
  two.weeksOnChart = 30;
  state.saveAllBillboardSongList.append(one);
  state.saveAllBillboardSongList.append(two);
  state.isLabelLaunched = 1;
  state.mostSuccessfulLabelHighScore = 77;
  state.AllCompletedAchievements = {3, 9};
  world.settle();
  for (state.weekNumber = 1; state.weekNumber <= 24; ++state.weekNumber) stateChanged(world.game);
  state.weekNumber = 24;
  stateChanged(world.game);
  const std::vector<std::pair<std::string, int64_t>> expected = {{"MONTHLYLISTENERS", 900}, {"MOSTPOPULARSONG", 5'000},
                                                                 {"MOSTWEEKONCHART", 30},   {"MOSTNUMBER1", 1},
                                                                 {"BESTRECORDLABEL", 77},   {"MOSTACHIEVEMENTS", 2}};
  EXPECT_EQ(world.platform.scores, expected) << "boards of empty lists are passed over";
  EXPECT_EQ(state.totalFanHighScore, 1'000) << "a kept score only rises";
  EXPECT_EQ(state.longestBillBoardHitHighScore, 30);
  world.expectSaved();

  state.saveAllAlbumList.append(releasedAlbum(12, "Known"));
  WeeklyAlbumSales week;
  week.albumRevenue = 1'234;
  state.saveAllWeeklyAlbumSales.append(week);
  Award won;
  won.isWinner = 1;
  state.saveAllMusicAwards.append(won);
  state.isLabelLaunched = 0;
  state.saveAllSongList.update(0, [](Song& forgotten) { forgotten.totalListen = 10; });
  world.platform.scores.clear();
  world.settle();
  for (const int64_t number : {25, 30, 47, 48, 48}) {
    state.weekNumber = number;
    stateChanged(world.game);
  }
  const std::vector<std::pair<std::string, int64_t>> later = {
      {"MONTHLYLISTENERS", 900}, {"MOSTPOPULARSONG", 5'000},     {"MOSTPOPULARALBUM", 0}, {"MOSTWEEKONCHART", 30},
      {"MOSTNUMBER1", 1},        {"HIGHESTGROSSALBUMWK", 1'234}, {"MOSTGRAMWINS", 1},     {"MOSTACHIEVEMENTS", 2}};
  EXPECT_EQ(world.platform.scores, later);
}

}  // namespace
}  // namespace backbeat
