#include "music/chart.h"

#include <gtest/gtest.h>

#include "core/view_find.h"
#include "music/screens/billboard_view_controller.h"
#include "support/world.h"

namespace backbeat {
namespace {

/// A week in which ten million streams make a number one.
struct ChartWeek : World {
  ChartWeek() {
    game.turn.firstPlaceChartPosition = 10'000'000;
    game.turn.lastPlaceChartPosition = 2'500'000;
    state.weekNumberForTracking = 60;
    state.yearNumber = 2024;
  }
  int64_t chart(int64_t songId, int64_t streams, int64_t ranking = 0) {
    return runChartStep(game, {songId, "Song", "", streams}, ranking);
  }
  const BillboardSong& row(size_t i) const { return state.saveAllBillboardSongList[i]; }
};

BillboardSong rowAt(int64_t songId, int64_t rank, int64_t streams) {
  BillboardSong row;
  row.songId = songId;
  row.songTitle = "Song " + std::to_string(songId);
  row.rankThisWeek = row.peakPosition = rank;
  row.weeklySongListens = streams;
  row.isOnCharts = true;
  row.weeksOnChart = 1;
  row.weeksAtOne = rank == 1 ? 1 : 0;
  row.yearDebut = 2023;
  return row;
}

TEST(ChartStep, ASongEntersClimbsLeavesAndComesBackUnseen) {
  ChartWeek week;
  EXPECT_EQ(week.chart(12, 2'499'999), 0);
  EXPECT_TRUE(week.state.saveAllBillboardSongList.empty());
  EXPECT_EQ(week.chart(12, 2'500'000), 75);
  EXPECT_EQ(week.row(0).weekNumber, 60);
  EXPECT_EQ(week.row(0).yearDebut, 2024);
  EXPECT_EQ(week.row(0).rankLastWeek, 0);
  week.game.turn.songsOnCharts.clear();
  EXPECT_EQ(week.chart(12, 25'000'000, 75), 1) << "far over first place is still rank 1";
  EXPECT_EQ(week.row(0).rankLastWeek, 75);
  EXPECT_EQ(week.row(0).weeksOnChart, 2);
  EXPECT_EQ(week.row(0).weeksAtOne, 1);
  EXPECT_EQ(week.chart(12, 0, 1), 0);
  EXPECT_FALSE(week.row(0).isOnCharts);
  EXPECT_EQ(week.row(0).rankThisWeek, 1012);
  week.game.turn.songsOnCharts.clear();
  EXPECT_EQ(week.chart(12, 5'000'000), 50);
  EXPECT_FALSE(week.row(0).isOnCharts);
  EXPECT_EQ(week.row(0).peakPosition, 1);
  EXPECT_EQ(week.chart(99, 0, 5), 0) << "a row that is gone: only the ranking is cleared";
}

TEST(ChartStep, CollisionsReadRanksAndStreamsAlike) {
  ChartWeek week;
  EXPECT_EQ(week.chart(12, 5'050'000), 50);
  EXPECT_EQ(week.chart(15, 5'010'000), 51) << "fewer streams: one down";
  EXPECT_EQ(week.chart(18, 5'000'000), 52) << "the raised rank meets the next pair";
  EXPECT_EQ(week.chart(21, 5'090'000), 50) << "more streams: both hold the rank";
  week.game.turn.songsOnCharts = {3, 9, 200};
  week.game.turn.lastPlaceChartPosition = 0;
  week.game.turn.firstPlaceChartPosition = 100;
  EXPECT_EQ(week.chart(24, 91), 10) << "the streams of one and the rank of the next pass for a pair";
}

TEST(SettleRanks, TiesGoDownAndGiveBackWhatTheyEarned) {
  World world;
  BillboardSong first = rowAt(12, 1, 15'000'000);
  BillboardSong tied = rowAt(15, 1, 14'000'000);
  BillboardSong gone = rowAt(18, 1018, 13'000'000);
  gone.isOnCharts = false;
  BillboardSong old = rowAt(21, 1, 12'000'000);
  old.weeksAtOne = 10;
  BillboardSong low = rowAt(24, 60, 4'000'000);
  for (const BillboardSong& row : {low, old, gone, tied, first}) world.state.saveAllBillboardSongList.append(row);
  world.settle();
  settleBillboardRanks(world.game);
  const RecordList<BillboardSong>& rows = world.state.saveAllBillboardSongList;
  EXPECT_EQ(rows[0], first);
  EXPECT_EQ(rows[1].rankThisWeek, 2);
  EXPECT_EQ(rows[1].weeksAtOne, 0);
  EXPECT_EQ(rows[1].peakPosition, 2);
  EXPECT_EQ(rows[2], gone) << "off the chart: passed over";
  EXPECT_EQ(rows[3].rankThisWeek, 3);
  EXPECT_EQ(rows[3].weeksAtOne, 9);
  EXPECT_EQ(rows[3].peakPosition, 1) << "a former number one keeps its peak";
  EXPECT_EQ(rows[4], low) << "gaps stay";
}

TEST(Billboard, OpeningRetiresOldHitsAndClearsTheLabelsSongs) {
  World world;
  world.state.yearNumber = 2026;  // the cut-off is 2023
  world.state.saveAllBillboardSongList.append(rowAt(12, 5, 9'000'000));
  BillboardSong fresh = rowAt(15, 7, 8'000'000);
  fresh.yearDebut = 2024;
  world.state.saveAllBillboardSongList.append(fresh);
  world.state.saveAllBillboardSongList.append(rowAt(signedArtistSongOffset + 3, 9, 7'000'000));
  world.state.saveAllBillboardSongList.append(rowAt(featuredSongOffset + 3, 11, 6'000'000));
  world.settle();
  BillboardViewController(world.game).open();
  EXPECT_EQ(world.state.saveAllBillboardSongList.size(), 3u);
  EXPECT_TRUE(world.state.saveAllBillboardSongList[0].isOnCharts) << "a hit of the cut-off year alone stays";

  BillboardSong older = rowAt(18, 3, 9'500'000);
  older.yearDebut = 2022;
  world.state.saveAllBillboardSongList.append(older);
  world.settle();
  BillboardViewController(world.game).open();
  EXPECT_FALSE(world.state.saveAllBillboardSongList[0].isOnCharts) << "with an older one it goes along";
  EXPECT_TRUE(world.state.saveAllBillboardSongList[1].isOnCharts);
}

TEST(Billboard, ShowsTheChartByRankAndTheHistoryByWeeksAtOne) {
  World world;
  world.state.myArtistsName = "Mira";
  BillboardSong risen = rowAt(12, 5, 9'000'000);
  risen.rankLastWeek = 8;
  risen.songFeature = "Nova";
  BillboardSong fallen = rowAt(featuredSongOffset + 3, 2, 9'500'000);
  fallen.rankLastWeek = 1;
  BillboardSong gone = rowAt(15, 1015, 1'000'000);
  gone.isOnCharts = false;
  gone.weeksAtOne = 4;
  for (const BillboardSong& row : {risen, fallen, gone}) world.state.saveAllBillboardSongList.append(row);
  FeaturedOn verse;
  verse.songId = 3;
  verse.artistName = "Juno";
  world.state.saveAllFeaturedOnList.append(verse);
  BillboardViewController screen(world.game);
  screen.open();
  const auto rows = [&] { return rowsOf(screen.view()); };
  ASSERT_EQ(rows().size(), 2u);
  EXPECT_EQ(rows()[0].value, "▼ 2");
  EXPECT_EQ(rows()[0].tone, Tone::bad);
  EXPECT_EQ(rows()[0].subtitle, "Juno\nPeak 2 · 1 week");
  EXPECT_EQ(screen.act({rows()[0].id, ""}).go->segue, "goToFeaturedOnDetail");
  EXPECT_EQ(rows()[1].value, "▲ 5");
  EXPECT_EQ(rows()[1].subtitle, "Mira\nfeat. Nova\nPeak 5 · 1 week");
  EXPECT_EQ(screen.act({rows()[1].id, ""}).go->argument, "12");
  screen.act({"historyButton", ""});
  ASSERT_EQ(rows().size(), 3u);
  EXPECT_EQ(rows()[0].note, "4");
  EXPECT_EQ(rows()[0].value, "2023");
}

}  // namespace
}  // namespace backbeat
