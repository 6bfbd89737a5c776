#include "music/milestones.h"

#include <algorithm>

#include "core/money.h"
#include "core/news.h"
#include "core/numbers.h"
#include "core/sorting.h"
#include "music/certifications.h"
#include "music/chart.h"
#include "music/listeners.h"
#include "music/streaming.h"

namespace backbeat {

namespace {

using Kind = Milestone::Kind;
using SongStanding = MilestoneSnapshot::SongStanding;

constexpr size_t weeksToBeat = 3;

Milestone ofSong(Kind kind, int64_t songId, std::string text, int64_t number) {
  return {kind, songId, -1, std::move(text), number};
}
Milestone ofAlbum(Kind kind, int64_t albumId, std::string text, int64_t number) {
  return {kind, -1, albumId, std::move(text), number};
}

std::string quoted(const std::string& title) { return "“" + title + "”"; }

/// A song that can move, and where it stands in a list that knows its records by the song.
struct Place {
  uint32_t position;
  const SongStanding* before;
};

/// The places of the songs that can move, in the order of the list.
template <class T>
std::vector<Place> placesOf(const std::vector<SongStanding>& songs, const RecordList<T>& list) {
  std::vector<Place> places;
  for (const SongStanding& song : songs) {
    for (const uint32_t position : list.historyOf(song.songId)) places.push_back({position, &song});
  }
  sortStably(places, [](const Place& a, const Place& b) { return a.position < b.position; });
  return places;
}

void addChartMilestone(std::vector<Milestone>& milestones, const SongStanding& before, const BillboardSong& row) {
  const std::string title = quoted(row.songTitle);
  if (!before.wasFirst && row.weeksAtOne > 0) {
    milestones.push_back(ofSong(Kind::numberOne, row.songId, title + " is number one!", 1));
  } else if (before.peak == 0) {
    milestones.push_back(ofSong(Kind::chartDebut, row.songId, title + " enters the chart at " + rank(row.rankThisWeek),
                                row.rankThisWeek));
  } else if (row.peakPosition < before.peak) {
    milestones.push_back(ofSong(Kind::newPeak, row.songId, title + " climbs to a new peak: " + rank(row.peakPosition),
                                row.peakPosition));
  }
}

std::string certified(const std::string& title, int64_t tier) {
  return quoted(title) + " is certified " + std::string(certificationName(tier));
}

/// The count of the week's row when it beats every earlier one, or 0. `weeks` are the rows of one song or album.
template <class T>
int64_t recordCount(const RecordList<T>& list, std::span<const uint32_t> weeks, int64_t T::*count) {
  if (weeks.size() <= weeksToBeat) return 0;
  const int64_t latest = list[weeks.back()].*count;
  const bool beaten =
      std::any_of(weeks.begin(), weeks.end() - 1, [&](uint32_t position) { return list[position].*count >= latest; });
  return beaten ? 0 : latest;
}

std::string bestWeekOf(const std::string& title) { return quoted(title) + " has its best week yet"; }

void addRecords(std::vector<Milestone>& milestones, const GameState& after, CalendarWeek week) {
  const auto& streams = after.saveAllWeeklySongListens;
  for (const WeeklySongListens& row : rowsOfWeek(streams, week)) {
    const int64_t best = recordCount(streams, streams.historyOf(row.songId), &WeeklySongListens::songListens);
    if (best == 0) continue;
    milestones.push_back(ofSong(Kind::recordWeek, row.songId, bestWeekOf(row.songTitle), best));
    milestones.back().amount = counted(best, "stream");
  }
  const auto& sales = after.saveAllWeeklyAlbumSales;
  for (const WeeklyAlbumSales& row : rowsOfWeek(sales, week)) {
    const int64_t best = recordCount(sales, sales.historyOf(row.albumId), &WeeklyAlbumSales::albumSales);
    if (best == 0) continue;
    milestones.push_back(ofAlbum(Kind::recordWeek, row.albumId, bestWeekOf(row.albumTitle), best));
    milestones.back().amount = withCommas(best) + " sold";
  }
}

void addStanding(MilestoneSnapshot& snapshot, const GameState& state) {
  const std::vector<int64_t>& listeners = state.monthlyListenerData;
  snapshot.week = {state.weekNumber, state.yearNumber};
  snapshot.absoluteWeek = state.weekNumberForTracking;
  snapshot.cash = state.totalCashAvailable;
  snapshot.listeners = state.totalFans;
  // What was won by a press since the last week counts for this one.
  snapshot.mostListeners = listeners.empty() ? state.totalFans : 0;
  for (const int64_t week : listeners) snapshot.mostListeners = std::max(snapshot.mostListeners, week);
  snapshot.allListenersKnown = listeners.size() < listenerWeeksRemembered;
  snapshot.followers = state.followerCount;
  snapshot.jobWeeks = state.weeklyJobContractRemaining;
}

void addBests(MilestoneSnapshot& snapshot, const GameState& state) {
  for (const Song& song : state.saveAllSongList) {
    if (song.totalListen > 0) snapshot.wasStreamed = true;
    snapshot.bestSongTier = std::max(snapshot.bestSongTier, songCertificationTier(song.totalListen));
  }
  for (const Album& album : state.saveAllAlbumList) {
    snapshot.bestAlbumTier = std::max(snapshot.bestAlbumTier, albumCertificationTier(album));
  }
  for (const BillboardSong& row : state.saveAllBillboardSongList) {
    if (!isOwnSong(row)) continue;
    if (snapshot.bestRank == 0 || row.peakPosition < snapshot.bestRank) snapshot.bestRank = row.peakPosition;
  }
}

void addWeek(StreamWeeks& weeks, const WeeklySongListens& row) {
  const CalendarWeek week = {row.weekNumber, row.yearNumber};
  if (week != weeks.latest) {
    weeks.bestStreams = std::max(weeks.bestStreams, weeks.streams);
    weeks.bestDollars = std::max(weeks.bestDollars, weeks.dollars);
    weeks.latest = week;
    weeks.streams = 0;
    weeks.dollars = 0;
    ++weeks.count;
  }
  weeks.streams = add(weeks.streams, row.songListens);
  weeks.dollars = std::max(weeks.dollars, row.totalStreamRevenue);
}

}  // namespace

MilestoneSnapshot milestoneSnapshot(Game& game) {
  const GameState& state = game.state;
  MilestoneSnapshot snapshot;
  addStanding(snapshot, state);
  if (historyIsWhole(state)) addBests(snapshot, state);
  snapshot.streamWeeks = game.launch.streamWeeks.over(state.saveAllWeeklySongListens, addWeek);
  for (const uint32_t i : state.saveAllSongList.awake()) {
    const Song& song = state.saveAllSongList[i];
    if (!song.isReleased || !(remainingLife(state, song) > 0)) continue;
    snapshot.songs.push_back({song.songId, songCertificationTier(song.totalListen), 0, false, false});
  }
  const RecordList<BillboardSong>& rows = state.saveAllBillboardSongList;
  for (SongStanding& song : snapshot.songs) {
    for (const uint32_t position : rows.historyOf(song.songId)) {
      song.peak = rows[position].peakPosition;
      song.wasFirst = rows[position].weeksAtOne > 0;
      song.wasOnChart = rows[position].isOnCharts;
    }
  }
  for (const uint32_t i : state.saveAllAlbumList.awake()) {
    const Album& album = state.saveAllAlbumList[i];
    snapshot.albums.push_back({album.albumId, albumCertificationTier(album)});
  }
  return snapshot;
}

std::vector<Milestone> milestonesSince(const MilestoneSnapshot& before, const GameState& after, CalendarWeek week) {
  std::vector<Milestone> milestones;
  const RecordList<BillboardSong>& rows = after.saveAllBillboardSongList;
  for (const Place& place : placesOf(before.songs, rows)) {
    const BillboardSong& row = rows[place.position];
    if (row.isOnCharts) addChartMilestone(milestones, *place.before, row);
  }
  for (const Place& place : placesOf(before.songs, after.saveAllSongList)) {
    const Song& song = after.saveAllSongList[place.position];
    const int64_t tier = songCertificationTier(song.totalListen);
    if (tier > place.before->tier) {
      milestones.push_back(ofSong(Kind::certification, song.songId, certified(song.title, tier), tier));
    }
  }
  for (const MilestoneSnapshot::AlbumStanding& album : before.albums) {
    for (const uint32_t position : after.saveAllAlbumList.historyOf(album.albumId)) {
      const Album& now = after.saveAllAlbumList[position];
      const int64_t tier = albumCertificationTier(now);
      if (tier <= album.tier) continue;
      milestones.push_back(ofAlbum(Kind::certification, now.albumId, certified(now.title, tier), tier));
    }
  }
  addRecords(milestones, after, week);
  sortStably(milestones, [](const Milestone& a, const Milestone& b) { return a.kind < b.kind; });
  return milestones;
}

}  // namespace backbeat
