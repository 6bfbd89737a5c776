#include "music/listeners.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "core/bands.h"
#include "core/numbers.h"

namespace backbeat {

namespace {

constexpr Band<int64_t, double> songRecencies[] = {
    {-1, -1.25}, {2, 1.75}, {6, 1.25}, {14, 0.75}, {30, 0.25}, {60, -0.25}, {120, -0.75},
};
constexpr double songRecencyBeyond = -1.25;

constexpr Band<int64_t, double> albumRecencies[] = {
    {-1, -0.5}, {26, 3.0}, {52, 2.25}, {79, 1.5}, {106, 0.75}, {133, 0.0}, {160, -0.25},
};
constexpr double albumRecencyBeyond = -0.5;

/// The most luck a week can bring, by fame. Past six billion it grows at a crawl: intended, as is the edge at 10,001.
constexpr Band<int64_t, double> luckTops[] = {
    {100, 2},          {1'000, 3},           {10'001, 10},           {100'000, 100},         {1'000'000, 300},
    {10'000'000, 750}, {100'000'000, 1'250}, {1'000'000'000, 2'500}, {6'000'000'000, 5'000},
};
constexpr double luckBeyond = 14;

constexpr int64_t recentWeeks = 104;
constexpr size_t weeksRemembered = 26;
constexpr double poolShare = 0.01;

/// Positions, the latest release first and equal ones as they stand. The weeks are taken out of the records before they
/// are sorted: records lie far apart, and a long career has thousands.
template <class T>
std::vector<size_t> byLatestRelease(const RecordList<T>& list) {
  std::vector<std::pair<int64_t, size_t>> weeks;
  weeks.reserve(list.size());
  for (size_t i = 0; i < list.size(); ++i) weeks.emplace_back(-list[i].releaseWeek, i);
  std::sort(weeks.begin(), weeks.end());
  std::vector<size_t> order;
  order.reserve(weeks.size());
  for (const auto& [week, position] : weeks) order.push_back(position);
  return order;
}

double meanRatingOfRecentSongs(const GameState& state) {
  double sum = 0;
  int64_t count = 0;
  for (const Song& song : state.saveAllSongList) {
    if (!song.isReleased || song.releaseWeek <= state.weekNumberForTracking - recentWeeks) continue;
    sum += song.productionRating;
    ++count;
  }
  return count == 0 ? 0 : sum / static_cast<double>(count);
}

int64_t marketingPoolMean(const Turn& turn) {
  if (turn.weeklyMarketingPoolCount < 1) return 0;
  return truncate(static_cast<double>(turn.weeklyMarketingPoolTotal) /
                  static_cast<double>(turn.weeklyMarketingPoolCount) * poolShare);
}

}  // namespace

double songRecencyFor(int64_t weeksSince) { return bandFor(songRecencies, weeksSince, songRecencyBeyond); }
double albumRecencyFor(int64_t weeksSince) { return bandFor(albumRecencies, weeksSince, albumRecencyBeyond); }

int64_t weeklyFanGainFor(Game& game, int64_t poolMean, double recency, double meanRating) {
  const int64_t fans = game.state.totalFans;
  const double luck = game.random.uniformDouble(0, bandFor(luckTops, add(fans, poolMean), luckBeyond));
  const int64_t gain = truncate((meanRating / 10) * (luck * recency));
  return fans + gain < 0 ? 0 : gain;
}

void simulateWeeklyListeners(Game& game) {
  GameState& state = game.state;
  Turn& turn = game.turn;
  const int64_t poolMean = marketingPoolMean(turn);
  turn.sortedSongListForFans = byLatestRelease(state.saveAllSongList);
  turn.sortedAlbumListForFans = byLatestRelease(state.saveAllAlbumList);
  // The first of each list counts, released or not: the built-in "Single" stands in as it is, with release week 0.
  double recency = 0;
  if (!turn.sortedSongListForFans.empty()) {
    const Song& latest = state.saveAllSongList[turn.sortedSongListForFans.front()];
    recency += songRecencyFor(state.weekNumberForTracking - latest.releaseWeek);
  }
  if (!turn.sortedAlbumListForFans.empty()) {
    const Album& latest = state.saveAllAlbumList[turn.sortedAlbumListForFans.front()];
    recency += albumRecencyFor(state.weekNumberForTracking - latest.releaseWeek);
  }
  const int64_t gain = weeklyFanGainFor(game, poolMean, recency, meanRatingOfRecentSongs(state));
  game.launch.weeklyFanChange = gain;
  state.totalFans = add(state.totalFans, gain);
  const double change = static_cast<double>(gain);
  state.followerCount = add(state.followerCount, truncate(game.random.uniformDouble(0.75, 1.25) * change));
  state.youVideoSubscriberCount =
      add(state.youVideoSubscriberCount, truncate(game.random.uniformDouble(0.3, 0.7) * change));
  state.monthlyListenerData.push_back(state.totalFans);
  if (state.monthlyListenerData.size() > weeksRemembered) {
    state.monthlyListenerData.erase(state.monthlyListenerData.begin());
  }
  game.save(&GameState::monthlyListenerData, &GameState::youVideoSubscriberCount, &GameState::totalFans,
            &GameState::followerCount);
}

}  // namespace backbeat
