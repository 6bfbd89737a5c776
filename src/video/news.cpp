#include "video/news.h"

#include <algorithm>

#include "core/money.h"
#include "core/numbers.h"
#include "core/week_rows.h"
#include "music/covers.h"
#include "video/channel.h"

namespace backbeat {

namespace {

constexpr int64_t firstToldViews = 1'000'000;

/// "1 million": what powers of ten are called.
std::string inWords(int64_t views) {
  return views >= 1'000'000'000 ? withCommas(views / 1'000'000'000) + " billion"
                                : withCommas(views / 1'000'000) + " million";
}

void addPremiere(const GameState& state, const MusicVideo& video, std::vector<News>& news) {
  const RecordList<MusicVideo>& videos = state.saveAllMusicVideoList;
  // Videos are never cleared away: the list holds all there ever were.
  const bool isFirst = std::none_of(videos.begin(), videos.end(),
                                    [&](const MusicVideo& other) { return other.videoId < video.videoId; });
  news.push_back({.kind = isFirst ? News::Kind::first : News::Kind::reached,
                  .rank = isFirst ? 440 : 130,
                  .key = "video",
                  .picture = stillOf(state, video),
                  .kicker = isFirst ? "Your first music video" : "New on your channel",
                  .headline = "“" + video.songTitle + "” has a video",
                  .text = directorOf(video.director) + " · " + (video.totalViews == 1 ? "1 view" : videoViews(video))});
}

/// What the video was viewed before the week of this row.
int64_t viewsBefore(const MusicVideo& video, const WeeklyVideoViews& week) {
  return add(video.totalViews, -week.videoViews);
}

void addViews(const GameState& state, const MusicVideo& video, const WeeklyVideoViews& week, std::vector<News>& news) {
  const int64_t step = passedPowerOfTen(viewsBefore(video, week), video.totalViews);
  if (step < firstToldViews) return;
  const RecordList<MusicVideo>& videos = state.saveAllMusicVideoList;
  const bool isFirst = std::none_of(videos.begin(), videos.end(), [&](const MusicVideo& other) {
    return other.videoId != video.videoId && other.totalViews >= step;
  });
  const std::string words = inWords(step);
  const std::string first = words.starts_with("1 ") ? words.substr(2) : words;  // "Your first million views"
  news.push_back({.kind = isFirst ? News::Kind::first : News::Kind::reached,
                  .rank = isFirst ? 470 : 190,
                  .key = "views " + std::to_string(step),
                  .picture = stillOf(state, video),
                  .kicker = isFirst ? "Your first " + first + " views" : "On your channel",
                  .headline = "“" + video.songTitle + "” passes " + words + " views",
                  .text = withCommas(week.videoViews) + " of them this week"});
}

}  // namespace

void addVideoNews(const Game& game, std::vector<News>& news) {
  const GameState& state = game.state;
  const MilestoneSnapshot& before = game.turn.before;
  for (const uint32_t i : state.saveAllMusicVideoList.awake()) {
    const MusicVideo& video = state.saveAllMusicVideoList[i];
    if (video.weekForTracking == before.absoluteWeek) addPremiere(state, video, news);
  }
  for (const WeeklyVideoViews& week : rowsOfWeek(state.saveAllWeeklyVideoViews, before.week)) {
    for (const uint32_t position : state.saveAllMusicVideoList.historyOf(week.songId)) {
      const MusicVideo& video = state.saveAllMusicVideoList[position];
      if (video.videoId == week.videoId) addViews(state, video, week, news);
    }
  }
}

}  // namespace backbeat
