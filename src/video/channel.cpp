#include "video/channel.h"

#include <algorithm>
#include <numeric>
#include <tuple>

#include "core/calendar.h"
#include "core/money.h"
#include "core/numbers.h"
#include "core/sorting.h"
#include "core/text.h"
#include "music/about_text.h"

namespace backbeat {

namespace {

constexpr int64_t fansForSubscribers = 26;
constexpr int64_t weeksToldAsMonths = 8;
constexpr int64_t weeksInAMonth = 4;
constexpr int64_t lyricStyle = 3;
constexpr const char* directedBy = "Directed by ";

std::vector<size_t> positionsOf(const RecordList<MusicVideo>& videos) {
  std::vector<size_t> positions(videos.size());
  std::iota(positions.begin(), positions.end(), size_t{0});
  return positions;
}

/// "A", "A and B", "A, B and C".
std::string listed(const std::vector<std::string>& names) {
  std::string text;
  for (size_t i = 0; i < names.size(); ++i) {
    if (i > 0) text += i + 1 == names.size() ? " and " : ", ";
    text += trimmed(names[i]);
  }
  return text;
}

}  // namespace

void seedSubscribers(Game& game) {
  GameState& state = game.state;
  if (state.totalFans < fansForSubscribers || state.assignSubscribers != 0) return;
  state.youVideoSubscriberCount = truncate(static_cast<double>(state.totalFans) * game.random.uniformDouble(0.3, 0.6));
  state.assignSubscribers = 1;
  game.save(&GameState::youVideoSubscriberCount, &GameState::assignSubscribers);
}

Outcome toggleSubscribe(Game& game) {
  GameState& state = game.state;
  const bool subscribes = state.didSubscribe == 0;
  state.didSubscribe = subscribes ? 1 : 0;
  state.youVideoSubscriberCount = add(state.youVideoSubscriberCount, subscribes ? 1 : -1);
  game.save(&GameState::didSubscribe, &GameState::youVideoSubscriberCount);
  stateChanged(game);
  return success();
}

size_t videoPosition(const GameState& state, int64_t videoId) {
  return state.saveAllMusicVideoList.find([&](const MusicVideo& video) { return video.videoId == videoId; });
}

std::vector<size_t> videosByAge(const GameState& state) {
  const RecordList<MusicVideo>& videos = state.saveAllMusicVideoList;
  std::vector<size_t> positions = positionsOf(videos);
  sortStably(positions, [&](size_t a, size_t b) {
    return std::tie(videos[a].weekForTracking, videos[a].videoId) >
           std::tie(videos[b].weekForTracking, videos[b].videoId);
  });
  return positions;
}

std::vector<size_t> videosByViews(const GameState& state) {
  const RecordList<MusicVideo>& videos = state.saveAllMusicVideoList;
  std::vector<size_t> positions = videosByAge(state);
  sortStably(positions, [&](size_t a, size_t b) { return videos[a].totalViews > videos[b].totalViews; });
  return positions;
}

std::string videoTitle(const MusicVideo& video) {
  return video.songTitle + " " +
         (video.styleOfVideo == lyricStyle ? "(Official Lyric Video)" : "(Official Music Video)");
}

std::string videoAge(const GameState& state, const MusicVideo& video) {
  const int64_t weeks = state.weekNumberForTracking - video.weekForTracking;
  if (weeks <= 0) return "this week";
  if (weeks == 1) return "1 week ago";
  if (weeks < weeksToldAsMonths) return std::to_string(weeks) + " weeks ago";
  return std::to_string(weeks / weeksInAMonth) + " month(s) ago";
}

std::string videoLength(const MusicVideo& video) {
  // What the record calls minutes are seconds: intended.
  const int64_t seconds = std::max<int64_t>(video.minutes, 0);
  const std::string rest = std::to_string(seconds % 60);
  return std::to_string(seconds / 60) + (rest.size() < 2 ? ":0" : ":") + rest;
}

std::string videoViews(const MusicVideo& video) {
  return abbreviated(static_cast<double>(video.totalViews)) + " views";
}

std::string directorOf(const std::string& director) {
  return director.starts_with(directedBy) ? director : directedBy + director;
}

std::string channelMotto(const GameState& state) {
  return "The official " + state.myArtistsName + " Channel - new and exclusive music videos ";
}

std::string videoDescription(const GameState& state, const MusicVideo& video) {
  std::vector<std::string> guests = video.songFeatures;
  std::erase(guests, "");
  std::string text = "“" + video.songTitle + "” by " + state.myArtistsName;
  if (!guests.empty()) text += " (featuring " + listed(guests) + ")";
  if (video.albumId != 0) text += " from the album '" + video.albumTitle + "'";
  text += ".";
  if (!video.cameos.empty()) text += " Starring " + listed(video.cameos) + ".";
  return text + "\n" + directorOf(video.director) + ".";
}

void writeMoreInfo(Game& game, const std::string& text) {
  game.state.moreInfoDescription = firstCharacters(text, longestAboutText);
  game.save(&GameState::moreInfoDescription);
}

}  // namespace backbeat
