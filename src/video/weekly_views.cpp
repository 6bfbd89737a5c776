#include "video/weekly_views.h"

#include <algorithm>

#include "core/numbers.h"
#include "music/streaming.h"

namespace backbeat {

namespace {

constexpr double viralityBase = 3;
constexpr double viralitySpread = 20;
constexpr double audienceDamper = 10;
constexpr double marketingLossPerWeek = 2;
constexpr double viralityLossPerWeek = 4;

constexpr double residualDivisor = 10'000;
constexpr double mostResidue = 1e12;        // no video comes near; a career from outside may claim endless growth
constexpr double leastRecordedResidue = 2;  // below it a week leaves no row, and nobody likes or comments

WeeklyVideoViews record(const GameState& state, const MusicVideo& video, double views, double revenue) {
  WeeklyVideoViews week;
  week.videoId = video.videoId;
  week.songId = video.songId;
  week.songTitle = video.songTitle;
  week.albumTitle = video.albumTitle;
  week.videoViews = truncate(views);
  week.weekNumber = state.weekNumber;
  week.yearNumber = state.yearNumber;
  week.totalViewRevenue = revenue;
  return week;
}

/// What people leave behind who viewed it; likes are drawn first.
struct Reactions {
  int64_t likes = 0;
  int64_t comments = 0;
};

Reactions drawReactions(Random& random, double views) {
  const int64_t likes = truncate(views * random.uniformDouble(0.01, 0.07));
  return {likes, truncate(views * random.uniformDouble(0.001, 0.0035))};
}

void addViews(MusicVideo& video, double views, const Reactions& reactions) {
  video.totalViews = add(video.totalViews, truncate(views));
  video.likes = add(video.likes, reactions.likes);
  video.comments = add(video.comments, reactions.comments);
}

void launchWeek(Game& game, size_t position, int64_t subscribers) {
  RecordList<MusicVideo>& videos = game.state.saveAllMusicVideoList;
  const MusicVideo& video = videos[position];
  const double viralMultiplier = power(viralityBase, video.viralityScore / viralitySpread) / audienceDamper;
  const int64_t reach = marketingReachFor(truncate(video.marketingScore));
  const double views =
      video.viewBonus * (video.productionRating / 100) * viralMultiplier * static_cast<double>(add(subscribers, reach));
  // Unrounded, unlike every later week: intended.
  const double revenue = views * video.streamPayRate * video.percentageOfEarnings;
  game.state.saveAllWeeklyVideoViews.append(record(game.state, video, views, revenue));
  const Reactions reactions = drawReactions(game.random, views);
  videos.update(position, [&](MusicVideo& changed) {
    addViews(changed, views, reactions);
    changed.marketingScore = std::max(changed.marketingScore - marketingLossPerWeek, 0.0);
    changed.viralityScore = std::max(changed.viralityScore - viralityLossPerWeek, 0.0);
  });
}

void residualWeek(Game& game, size_t position, double life) {
  RecordList<MusicVideo>& videos = game.state.saveAllMusicVideoList;
  const MusicVideo& video = videos[position];
  const double base =
      std::clamp(life / residualDivisor * static_cast<double>(video.totalViews) * 0.5, -mostResidue, mostResidue);
  const double views = video.viewBonus * base;
  Reactions reactions;
  if (base >= leastRecordedResidue) {
    reactions = drawReactions(game.random, views);
    const double revenue = streamRevenue(views, video.streamPayRate, video.percentageOfEarnings);
    game.state.saveAllWeeklyVideoViews.append(record(game.state, video, views, revenue));
  } else if (truncate(views) == 0) {
    return;
  }
  videos.update(position, [&](MusicVideo& changed) { addViews(changed, views, reactions); });
}

}  // namespace

double remainingLife(const GameState& state, const MusicVideo& video) {
  return video.productionRating - static_cast<double>(state.weekNumberForTracking - video.weekForTracking);
}

bool isForgotten(const GameState& state, const MusicVideo& video) {
  return video.isReleased && video.weekForTracking < state.weekNumberForTracking && !(remainingLife(state, video) > 0);
}

void letForgottenVideosSleep(GameState& state) {
  state.saveAllMusicVideoList.letSleep([&](const MusicVideo& video) { return isForgotten(state, video); });
}

void simulateWeeklyVideoViews(Game& game) {
  GameState& state = game.state;
  const int64_t subscribers = state.youVideoSubscriberCount;
  state.saveAllMusicVideoList.sortDescending(&MusicVideo::viralityScore);
  for (const uint32_t i : state.saveAllMusicVideoList.awake()) {
    const MusicVideo& video = state.saveAllMusicVideoList[i];
    const double life = remainingLife(state, video);
    if (!video.isReleased || !(life > 0)) continue;
    if (video.marketingScore > 0) {
      launchWeek(game, i, subscribers);
    } else if (video.marketingScore == 0) {
      residualWeek(game, i, life);
    }
  }
  game.save(&GameState::saveAllMusicVideoList, &GameState::saveAllWeeklyVideoViews);
}

}  // namespace backbeat
