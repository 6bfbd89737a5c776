#include "music/listeners.h"

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

#include "core/bands.h"
#include "core/numbers.h"
#include "core/sorting.h"

namespace backbeat {

namespace {

constexpr Band<int64_t, double> songRecencies[] = {
    {-1, -1.25}, {2, 1.75}, {6, 1.25}, {14, 0.75}, {30, 0.25}, {60, -0.25}, {songWeeksRemembered, -0.75},
};
constexpr double songRecencyBeyond = -1.25;

constexpr Band<int64_t, double> albumRecencies[] = {
    {-1, -0.5}, {26, 3.0}, {52, 2.25}, {79, 1.5}, {106, 0.75}, {133, 0.0}, {albumWeeksRemembered, -0.25},
};
constexpr double albumRecencyBeyond = -0.5;

/// The most luck a week can bring, by fame. Past six billion it grows at a crawl: intended, as is the edge at 10,001.
constexpr Band<int64_t, double> luckTops[] = {
    {100, 2},          {1'000, 3},           {10'001, 10},           {100'000, 100},         {1'000'000, 300},
    {10'000'000, 750}, {100'000'000, 1'250}, {1'000'000'000, 2'500}, {6'000'000'000, 5'000},
};
constexpr double luckBeyond = 14;

constexpr int64_t recentWeeks = 104;
static_assert(recentWeeks < songWeeksRemembered, "a silent song would count");
constexpr double poolShare = 0.01;

/// Weeks since the latest release, released or not: something still in production has release week 0, and the built-in
/// "Single" stands in as it is, with 0 too. `forgotten` when all is silent.
template <class T>
int64_t weeksSinceRelease(const GameState& state, const RecordList<T>& list, int64_t forgotten) {
  std::optional<int64_t> latest;
  for (const uint32_t i : list.awake()) latest = std::max(latest.value_or(list[i].releaseWeek), list[i].releaseWeek);
  return latest ? state.weekNumberForTracking - *latest : forgotten;
}

/// Summed from the latest release on, equal ones as they stand: the order decides the last bit of a sum.
double meanRatingOfRecentSongs(const GameState& state) {
  const RecordList<Song>& songs = state.saveAllSongList;
  std::vector<std::pair<int64_t, size_t>> sortedSongListForFans;
  for (const uint32_t i : songs.awake()) {
    if (!songs[i].isReleased || songs[i].releaseWeek <= state.weekNumberForTracking - recentWeeks) continue;
    sortedSongListForFans.emplace_back(-songs[i].releaseWeek, i);
  }
  sortStably(sortedSongListForFans, [](const auto& a, const auto& b) { return a.first < b.first; });
  double sum = 0;
  for (const auto& [week, position] : sortedSongListForFans) sum += songs[position].productionRating;
  return sortedSongListForFans.empty() ? 0 : sum / static_cast<double>(sortedSongListForFans.size());
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
  const int64_t poolMean = marketingPoolMean(game.turn);
  double recency = 0;
  if (!state.saveAllSongList.empty()) {
    recency += songRecencyFor(weeksSinceRelease(state, state.saveAllSongList, songWeeksRemembered + 1));
  }
  if (!state.saveAllAlbumList.empty()) {
    recency += albumRecencyFor(weeksSinceRelease(state, state.saveAllAlbumList, albumWeeksRemembered + 1));
  }
  const int64_t gain = weeklyFanGainFor(game, poolMean, recency, meanRatingOfRecentSongs(state));
  game.launch.weeklyFanChange = gain;
  state.totalFans = add(state.totalFans, gain);
  const double change = static_cast<double>(gain);
  state.followerCount = add(state.followerCount, truncate(game.random.uniformDouble(0.75, 1.25) * change));
  state.youVideoSubscriberCount =
      add(state.youVideoSubscriberCount, truncate(game.random.uniformDouble(0.3, 0.7) * change));
  state.monthlyListenerData.push_back(state.totalFans);
  if (state.monthlyListenerData.size() > listenerWeeksRemembered) {
    state.monthlyListenerData.erase(state.monthlyListenerData.begin());
  }
  game.save(&GameState::monthlyListenerData, &GameState::youVideoSubscriberCount, &GameState::totalFans,
            &GameState::followerCount);
}

}  // namespace backbeat
