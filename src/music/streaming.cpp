#include "music/streaming.h"

#include <algorithm>

#include "core/bands.h"
#include "core/numbers.h"
#include "core/text.h"
#include "music/chart.h"

namespace backbeat {

namespace {

constexpr Band<int64_t, int64_t> marketingReach[] = {
    {10, 100},    {20, 300},    {30, 1'000},   {40, 3'000},   {50, 10'000},
    {60, 30'000}, {70, 60'000}, {80, 125'000}, {90, 250'000}, {250, 500'000},
};
constexpr int64_t reachBeyond = 100;

constexpr double viralityBase = 3;
constexpr double viralityLossPerWeek = 6;
constexpr double overMarketed = 100;  // past this a week without luck costs marketing twice

struct Streams {
  double listens = 0;  // uncut: the money counts the fraction
  int64_t count = 0;
};

WeeklySongListens record(const GameState& state, const Song& song, const Streams& streams) {
  WeeklySongListens week;
  week.songId = song.songId;
  week.songTitle = song.title;
  week.albumTitle = song.album;
  week.songListens = streams.count;
  week.weekNumber = state.weekNumber;
  week.yearNumber = state.yearNumber;
  week.totalStreamRevenue = streamRevenue(streams.listens, song.streamPayRate, song.percentageOfEarnings);
  return week;
}

std::string joinedFeatures(const std::vector<std::string>& features) {
  std::string names;
  for (size_t i = 1; i < features.size(); ++i) {
    if (i > 1) names += ", ";
    names += trimmed(features[i]);
  }
  return names;
}

double driftedMarketing(Random& random, double marketing, double productionRating) {
  if (static_cast<double>(random.integer(0, 200)) <= productionRating) return marketing + random.uniformDouble(0, 2);
  marketing -= random.uniformDouble(1, 4);
  if (marketing > overMarketed) marketing -= random.uniformDouble(5, 10);
  return std::max(marketing, 0.0);
}

void launchWeek(Game& game, size_t position, int64_t fans) {
  RecordList<Song>& songs = game.state.saveAllSongList;
  const Song& song = songs[position];
  const double spread = game.random.uniformDouble(17, 25);
  const double viralMultiplier = power(viralityBase, song.viralityScore / spread);
  const int64_t reach = marketingReachFor(truncate(song.marketingScore));
  const double damper = game.random.uniformDouble(9, 11);
  const double audience = static_cast<double>(add(fans, reach)) * (viralMultiplier / damper);
  game.turn.weeklyMarketingPoolTotal = add(game.turn.weeklyMarketingPoolTotal, truncate(audience));
  game.turn.weeklyMarketingPoolCount += 1;
  Streams streams;
  streams.listens = audience * (song.productionRating / 100);
  streams.count = truncate(streams.listens);
  const int64_t ranking = chartedRank(game, song, 0, streams.count, joinedFeatures);
  game.state.saveAllWeeklySongListens.append(record(game.state, song, streams));
  const double marketing = driftedMarketing(game.random, song.marketingScore, song.productionRating);
  songs.update(position, [&](Song& changed) {
    changed.chartRanking = ranking;
    changed.totalListen = add(changed.totalListen, streams.count);
    changed.marketingScore = marketing;
    changed.viralityScore = std::max(changed.viralityScore - viralityLossPerWeek, 0.0);
  });
}

/// A random part of the last recorded week; a song that never streamed, or lost its records, streams nothing. A week of
/// 0 or 1 streams leaves no record, so the next draw has the same ceiling.
Streams residualStreams(Game& game, const Song& song) {
  const RecordList<WeeklySongListens>& history = game.state.saveAllWeeklySongListens;
  const auto weeks = history.historyOf(song.songId);
  if (weeks.empty()) return {};
  const int64_t last = history[weeks.back()].songListens;
  if (last < 1) return {};
  const int64_t count = game.random.integer(0, last);
  return {static_cast<double>(count), count};
}

void residualWeek(Game& game, size_t position) {
  RecordList<Song>& songs = game.state.saveAllSongList;
  const Song& song = songs[position];
  const Streams streams = residualStreams(game, song);
  if (streams.count >= 2) game.state.saveAllWeeklySongListens.append(record(game.state, song, streams));
  const int64_t ranking = chartedRank(game, song, 0, streams.count);  // the row names the first guest alone
  if (streams.count == 0 && ranking == song.chartRanking) return;
  songs.update(position, [&](Song& changed) {
    changed.totalListen = add(changed.totalListen, streams.count);
    changed.chartRanking = ranking;
  });
}

}  // namespace

int64_t marketingReachFor(int64_t marketingScore) { return bandFor(marketingReach, marketingScore, reachBeyond); }

double streamRevenue(double streams, double payRate, double shareKept) {
  return static_cast<double>(roundHalfAway(streams * payRate * shareKept * 1000)) / 1000;
}

double remainingLife(const GameState& state, const Song& song) {
  return song.productionRating - static_cast<double>(state.weekNumberForTracking - song.releaseWeek);
}

void simulateWeeklySongStreams(Game& game) {
  openWeeklyChart(game);
  GameState& state = game.state;
  const int64_t fans = state.totalFans;
  state.saveAllSongList.sortDescending(&Song::viralityScore);
  for (const uint32_t i : state.saveAllSongList.awake()) {
    const Song& song = state.saveAllSongList[i];
    // A song that dies on the chart keeps its row there: it is skipped before the chart step, on purpose.
    if (!song.isReleased || !(remainingLife(state, song) > 0)) continue;
    if (song.marketingScore > 0) {
      launchWeek(game, i, fans);
    } else if (song.marketingScore == 0) {
      residualWeek(game, i);
    }
  }
  game.save(&GameState::saveAllSongList, &GameState::saveAllBillboardSongList, &GameState::saveAllWeeklySongListens);
}

}  // namespace backbeat
