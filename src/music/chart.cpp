#include "music/chart.h"

#include <algorithm>

#include "core/numbers.h"

namespace backbeat {

namespace {

constexpr int64_t leastFirstPlace = 10'000'000;
constexpr int64_t greatestFirstPlace = 15'000'000;
constexpr double shareBelowFirstPlace = 0.75;
/// A row off the chart shows its id plus this as its rank; odd, and meant to stay so.
constexpr int64_t offChartMark = 1000;
constexpr int64_t yearsOnChart = 3;

void leaveChart(Game& game, int64_t songId) {
  RecordList<BillboardSong>& rows = game.state.saveAllBillboardSongList;
  for (const uint32_t i : rows.historyOf(songId)) {
    rows.update(i, [&](BillboardSong& row) {
      row.rankLastWeek = row.rankThisWeek;
      row.rankThisWeek = songId + offChartMark;
      row.isOnCharts = false;
    });
  }
}

/// One pass over the flat list of ranks and streams, up to the last element but one. The comparison does not tell ranks
/// from streams, and later elements meet the rank already raised; both are how it is meant to work.
int64_t rankAfterCollisions(const std::vector<int64_t>& songsOnCharts, int64_t rank, int64_t streams) {
  for (size_t i = 0; i + 1 < songsOnCharts.size(); ++i) {
    if (songsOnCharts[i] == rank && songsOnCharts[i + 1] > streams) ++rank;
  }
  return rank;
}

BillboardSong debut(const GameState& state, const ChartEntry& entry, int64_t rank) {
  BillboardSong row;
  row.songId = entry.songId;
  row.songTitle = entry.title;
  row.songFeature = entry.feature;
  row.weeklySongListens = entry.streams;
  row.rankThisWeek = rank;
  row.peakPosition = rank;
  row.weeksOnChart = 1;
  row.yearDebut = state.yearNumber;
  row.yearCurrent = state.yearNumber;
  row.weekNumber = state.weekNumberForTracking;
  row.isOnCharts = true;
  row.weeksAtOne = rank == 1 ? 1 : 0;
  return row;
}

void chartAgain(BillboardSong& row, int64_t year, int64_t streams, int64_t rank) {
  row.rankLastWeek = row.rankThisWeek;
  row.rankThisWeek = rank;
  row.yearCurrent = year;
  row.weeksOnChart += 1;
  row.weeklySongListens = streams;
  if (rank == 1) row.weeksAtOne += 1;
  row.peakPosition = std::min(row.peakPosition, rank);
}

/// Moves a row down to `rank`, taking back a week at number one and a peak that was earned only this week. A song that
/// has ever held number one keeps its peak.
void pushDown(BillboardSong& row, int64_t rank) {
  const int64_t earned = row.rankThisWeek;
  row.rankThisWeek = rank;
  if (earned == 1) row.weeksAtOne -= 1;
  if (earned <= row.peakPosition && row.weeksAtOne == 0) row.peakPosition = rank;
}

}  // namespace

void openWeeklyChart(Game& game) {
  Turn& turn = game.turn;
  turn.firstPlaceChartPosition = game.random.integer(leastFirstPlace, greatestFirstPlace);
  turn.listensWithinRangeOfChart = static_cast<double>(turn.firstPlaceChartPosition) * shareBelowFirstPlace;
  turn.lastPlaceChartPosition = turn.firstPlaceChartPosition - truncate(turn.listensWithinRangeOfChart);
  turn.songsOnCharts.clear();
}

int64_t chartRankFor(int64_t streams, int64_t firstPlace) {
  const double percentage = static_cast<double>(streams) / static_cast<double>(firstPlace) * 100;
  return std::max(100 - truncate(percentage), int64_t{1});
}

int64_t runChartStep(Game& game, const ChartEntry& entry, int64_t ranking) {
  Turn& turn = game.turn;
  if (entry.streams < turn.lastPlaceChartPosition) {
    if (ranking > 0) leaveChart(game, entry.songId);
    return 0;
  }
  const int64_t rank =
      rankAfterCollisions(turn.songsOnCharts, chartRankFor(entry.streams, turn.firstPlaceChartPosition), entry.streams);
  RecordList<BillboardSong>& rows = game.state.saveAllBillboardSongList;
  const auto known = rows.historyOf(entry.songId);
  for (const uint32_t i : known) {
    rows.update(i, [&](BillboardSong& row) { chartAgain(row, game.state.yearNumber, entry.streams, rank); });
  }
  if (known.empty()) rows.append(debut(game.state, entry, rank));
  turn.songsOnCharts.push_back(rank);
  turn.songsOnCharts.push_back(entry.streams);
  return rank;
}

std::string firstGuest(const std::vector<std::string>& features) {
  return features.size() < 2 ? "" : trimmed(features[1]);
}

void settleBillboardRanks(Game& game) {
  RecordList<BillboardSong>& rows = game.state.saveAllBillboardSongList;
  if (rows.empty()) return;
  rows.sortDescending(&BillboardSong::weeklySongListens);
  int64_t previous = 0;
  for (const uint32_t i : rows.awake()) {
    if (!rows[i].isOnCharts) continue;
    if (previous >= rows[i].rankThisWeek) {
      rows.update(i, [&](BillboardSong& row) { pushDown(row, previous + 1); });
    }
    previous = rows[i].rankThisWeek;
  }
  game.save(&GameState::saveAllBillboardSongList);
}

void retireOldChartRows(Game& game) {
  RecordList<BillboardSong>& rows = game.state.saveAllBillboardSongList;
  const int64_t cutoff = game.state.yearNumber - yearsOnChart;
  // Strict here and not strict below: a hit of the cut-off year goes only once an older one is there.
  const bool anyOlder =
      std::any_of(rows.begin(), rows.end(), [&](const auto& row) { return row.isOnCharts && row.yearDebut < cutoff; });
  if (anyOlder) {
    for (size_t i = 0; i < rows.size(); ++i) {
      if (!rows[i].isOnCharts || rows[i].yearDebut > cutoff) continue;
      rows.update(i, [](BillboardSong& row) { row.isOnCharts = false; });
    }
  }
  game.save(&GameState::saveAllBillboardSongList);
}

void removeSignedArtistChartRows(Game& game) {
  if (!game.state.saveAllSignedArtistList.empty()) return;
  const size_t gone = game.state.saveAllBillboardSongList.eraseIf(isOfTheLabel);
  if (gone > 0) game.save(&GameState::saveAllBillboardSongList);
}

}  // namespace backbeat
