#include "video/builders.h"

#include <utility>

namespace backbeat {

MusicVideo videoOf(const GameState& state, int64_t songId) {
  MusicVideo video;
  video.songId = songId;
  video.songTitle = "Song No. " + std::to_string(songId);
  for (const Song& song : state.saveAllSongList) {
    if (song.songId == songId) video.songTitle = song.title;
  }
  video.songFeatures = {""};
  video.albumTitle = "Single";
  video.viralityScore = 20;
  video.productionRating = 50;
  video.marketingScore = 10;
  video.director = "Joe Jackson";
  video.viewBonus = 1;
  video.streamPayRate = 0.005;
  video.percentageOfEarnings = 1;
  video.minutes = 200;
  video.isReleased = true;
  return video;
}

void addVideo(GameState& state, MusicVideo video, int64_t weeksAgo) {
  video.videoId = ++state.musicVideoId;
  ++state.musicVideoId;
  video.weekForTracking = state.weekNumberForTracking - weeksAgo;
  video.year = 2023 + (video.weekForTracking - 1) / 52;
  state.saveAllMusicVideoList.append(std::move(video));
}

void addVideoViews(GameState& state, const MusicVideo& video, int64_t weeksAgo, int64_t views) {
  const int64_t absolute = state.weekNumberForTracking - weeksAgo;
  WeeklyVideoViews row;
  row.videoId = video.videoId;
  row.songId = video.songId;
  row.songTitle = video.songTitle;
  row.albumTitle = video.albumTitle;
  row.videoViews = views;
  row.totalViewRevenue = static_cast<double>(views) * video.streamPayRate;
  row.weekNumber = (absolute - 1) % 52 + 1;
  row.yearNumber = 2023 + (absolute - 1) / 52;
  state.saveAllWeeklyVideoViews.append(std::move(row));
}

}  // namespace backbeat
