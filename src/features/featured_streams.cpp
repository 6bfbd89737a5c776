#include "features/featured_streams.h"

#include <algorithm>

#include "core/numbers.h"
#include "music/chart.h"
#include "music/streaming.h"

namespace backbeat {

namespace {

constexpr double viralityBase = 3;
constexpr double viralitySpread = 20;
constexpr double damper = 10;
constexpr double marketingLossPerWeek = 2;
constexpr double viralityLossPerWeek = 6;
constexpr double residualShare = 0.5;
constexpr double lifeScale = 10'000;
constexpr double fewestRecorded = 2;
/// No song comes near it by itself; one out of a file may have centuries to grow.
constexpr double mostStreams = 1e12;

/// Unlike the artist's own streams, cut to a tenth of a cent and not rounded.
double shareOfStreams(double streams, const FeaturedOn& verse) {
  return static_cast<double>(truncate(streams * verse.streamPayRate * verse.percentageOfEarnings * 1000)) / 1000;
}

void record(GameState& state, const FeaturedOn& verse, double streams) {
  FeaturedOnWeeklySongListens week;
  week.songId = verse.songId;
  week.artistName = verse.artistName;
  week.artistId = verse.artistId;
  week.albumId = verse.albumId;
  week.songTitle = verse.title;
  week.songListens = truncate(streams);
  week.weekNumber = state.weekNumber;
  week.yearNumber = state.yearNumber;
  week.totalStreamRevenue = shareOfStreams(streams, verse);
  state.saveAllFeaturedOnWeeklySongListens.append(std::move(week));
}

void launchWeek(Game& game, size_t position) {
  RecordList<FeaturedOn>& verses = game.state.saveAllFeaturedOnList;
  const FeaturedOn& verse = verses[position];
  const double multiplier = power(viralityBase, verse.viralityScore / viralitySpread);
  const double reach = static_cast<double>(marketingReachFor(truncate(verse.marketingScore)));
  const double streams = multiplier / damper * reach * (verse.productionRating / 100);
  const int64_t ranking = chartedRank(game, verse, featuredSongOffset, truncate(streams));
  record(game.state, verse, streams);
  verses.update(position, [&](FeaturedOn& changed) {
    changed.chartRanking = ranking;
    changed.totalListen = add(changed.totalListen, truncate(streams));
    changed.marketingScore = std::max(changed.marketingScore - marketingLossPerWeek, 0.0);
    changed.viralityScore = std::max(changed.viralityScore - viralityLossPerWeek, 0.0);
  });
}

void residualWeek(Game& game, size_t position, double life) {
  RecordList<FeaturedOn>& verses = game.state.saveAllFeaturedOnList;
  const FeaturedOn& verse = verses[position];
  const double total = static_cast<double>(verse.totalListen);
  const double streams = std::min(life / lifeScale * total * residualShare, mostStreams - total);
  const int64_t count = truncate(streams);
  const int64_t ranking = chartedRank(game, verse, featuredSongOffset, count);
  if (streams >= fewestRecorded) record(game.state, verse, streams);
  if (count == 0 && ranking == verse.chartRanking) return;
  verses.update(position, [&](FeaturedOn& changed) {
    changed.totalListen = add(changed.totalListen, count);
    changed.chartRanking = ranking;
  });
}

}  // namespace

double remainingLife(const GameState& state, const FeaturedOn& verse) {
  return verse.productionRating - static_cast<double>(state.weekNumberForTracking - verse.releaseWeek);
}

bool isForgotten(const GameState& state, const FeaturedOn& verse) {
  return verse.isReleased && verse.chartRanking <= 0 && verse.releaseWeek < state.weekNumberForTracking &&
         !(remainingLife(state, verse) > 0);
}

void letForgottenVersesSleep(GameState& state) {
  state.saveAllFeaturedOnList.letSleep([&](const FeaturedOn& verse) { return isForgotten(state, verse); });
}

void simulateFeaturedOnStreams(Game& game) {
  const RecordList<FeaturedOn>& verses = game.state.saveAllFeaturedOnList;
  for (const uint32_t i : verses.awake()) {
    const double life = remainingLife(game.state, verses[i]);
    if (!verses[i].isReleased || !(life > 0)) continue;
    if (verses[i].marketingScore > 0) {
      launchWeek(game, i);
    } else if (verses[i].marketingScore == 0) {
      residualWeek(game, i, life);
    }
  }
  game.save(&GameState::saveAllFeaturedOnList, &GameState::saveAllFeaturedOnWeeklySongListens,
            &GameState::saveAllBillboardSongList);
}

}  // namespace backbeat
