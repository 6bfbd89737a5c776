#include "play/figures.h"

#include "career/skill.h"
#include "core/money.h"
#include "music/guests.h"
#include "music/song_release.h"
#include "video/channel.h"
#include "video/comments.h"
#include "video/video_creation.h"
#include "video/weekly_views.h"

namespace backbeat {

namespace {

struct Made {
  int64_t videoId;
  int64_t songId;
  const char* title;
  int64_t age;  ///< weeks
  int64_t style;
  double rating;
  int64_t totalViews;
  int64_t length;
};

/// Their time is not counted on, so that the week that ends brings no views.
void make(GameState& state, OwnValues& own, const Made& made) {
  MusicVideo video = own.record<MusicVideo>();
  video.videoId = made.videoId;
  video.songId = made.songId;
  video.songTitle = made.title;
  video.albumTitle = "Single";
  video.albumId = 0;
  video.weekForTracking = state.weekNumberForTracking - made.age;
  video.year = state.yearNumber - 1;
  video.styleOfVideo = made.style;
  video.productionRating = made.rating;
  video.totalViews = made.totalViews;
  video.minutes = made.length;
  video.director = "Ida Reel";
  video.percentageOfEarnings = 0.745 + static_cast<double>(made.videoId) / 1'000;
  video.streamPayRate = static_cast<double>(made.videoId) / 7'000;
  state.saveAllMusicVideoList.append(video);
}

/// Three weeks of the video before those that are there already.
void watch(GameState& state, OwnValues& own, int64_t videoId) {
  std::vector<WeeklyVideoViews> rows;
  for (int64_t ago = 4; ago > 1; --ago) {
    WeeklyVideoViews week = own.record<WeeklyVideoViews>();
    week.videoId = videoId;
    week.songId = 27;
    week.videoViews = 1'300'000 + 100'001 * ago;
    week.weekNumber = state.weekNumber - ago;
    week.yearNumber = state.yearNumber;
    rows.push_back(week);
  }
  for (const WeeklyVideoViews& week : state.saveAllWeeklyVideoViews) rows.push_back(week);
  state.saveAllWeeklyVideoViews.assign(std::move(rows));
}

void furnish(GameState& state, OwnValues& own) {
  make(state, own, {31, 27, "Tin Roof", 13, 1, 64.5, 7'654'111, 211});
  make(state, own, {33, 12, "Paper Boats", 5, 0, 33.75, 4'321'222, 333});
  make(state, own, {35, 6, "Old Reel", 2, 3, 8.25, 9'876'333, 158});  // the song is gone
  watch(state, own, 31);
  state.assignSubscribers = 1;
  state.didSubscribe = 1;
}

const MusicVideo& titled(const GameState& state, std::string_view title) {
  const RecordList<MusicVideo>& videos = state.saveAllMusicVideoList;
  return videos[videos.find([&](const MusicVideo& video) { return video.songTitle == title; })];
}

std::string shortly(int64_t number) { return abbreviated(static_cast<double>(number)); }

Standings channelFigures(Game& twin) {
  const GameState& state = twin.state;
  Standings standings = {{"cover: text", shortly(state.youVideoSubscriberCount) + " subscribers · 3 videos"},
                         {"About the channel", "", "goToYouDescription"},
                         {"Most viewed", "", "nowhere"},
                         {"Old Reel (Official Lyric Video): badge", "Newest"}};
  const std::tuple<const char*, const char*, const char*, const char*> films[] = {
      {"Old Reel", " (Official Lyric Video)", "2:38", "2 weeks ago"},
      {"Paper Boats", " (Official Music Video)", "5:33", "5 weeks ago"},
      {"Tin Roof", " (Official Music Video)", "3:31", "3 month(s) ago"}};
  for (const auto& [title, kind, length, age] : films) {
    const MusicVideo& video = titled(state, title);
    const std::string place = std::string(title) + kind;
    standings.push_back({place, length, "goToYouViewVideoDetail " + std::to_string(video.videoId)});
    standings.push_back({place + ": subtitle", shortly(video.totalViews) + " views · " + age});
  }
  return standings;
}

/// "1,600,004 1,500,003 1,400,002" as points, and the rows themselves.
std::vector<WeeklyVideoViews> weeksOfTinRoof(const GameState& state) {
  std::vector<WeeklyVideoViews> weeks;
  for (const WeeklyVideoViews& week : state.saveAllWeeklyVideoViews) {
    if (week.videoId == 31) weeks.push_back(week);
  }
  return weeks;
}

Standings filmFigures(Game& twin) {
  const GameState& state = twin.state;
  const MusicVideo& video = titled(state, "Tin Roof");
  std::vector<double> points;
  for (const WeeklyVideoViews& week : weeksOfTinRoof(state)) points.push_back(static_cast<double>(week.videoViews));
  return {{"cover: text", shortly(video.totalViews) + " views · 3 month(s) ago"},
          {"Likes", shortly(video.likes)},
          {"Comments", shortly(video.comments)},
          {"Rating", "64.5"},
          {"Description", "", "goToYouVideoDetailDescription 31"},
          {"Views", withCommas(video.totalViews)},
          {"Views: note", "52 weeks left"},
          {"Views: points", pointsText(points)}};
}

Standings descriptionFigures(Game& twin) {
  const GameState& state = twin.state;
  const MusicVideo& video = titled(state, "Tin Roof");
  const std::vector<WeeklyVideoViews> weeks = weeksOfTinRoof(state);
  double earned = 0;
  Standings standings;
  for (const WeeklyVideoViews& week : weeks) {
    earned += week.totalViewRevenue;
    const std::string when = std::to_string(week.weekNumber) + ", " + std::to_string(state.yearNumber);
    standings.push_back({when + ": Views", withCommas(week.videoViews)});
    standings.push_back({when + ": Earned", price(week.totalViewRevenue)});
  }
  return standings + Standings{{"text (2)", "Cinematic · 3:31 · " + std::to_string(video.year)},
                               {"Tin Roof", "", "goToSongDetail 27"},
                               {"Best week", withCommas(weeks.front().videoViews)},
                               {"1,000 views", price(video.streamPayRate * 1'000)},
                               {"Your share", percentage(video.percentageOfEarnings * 100)},
                               {"Earned", currency(earned)},
                               {"The shoot", currency(-video.productionCost)},
                               {"Left of it", currency(earned - video.productionCost)}};
}

Standings aboutFigures(Game& twin) {
  const GameState& state = twin.state;
  return {{"Subscribers", withCommas(state.youVideoSubscriberCount)},
          {"Views", withCommas(7'654'111 + 4'321'222 + 9'876'333)},
          {"text (2)", state.aboutDescription},
          {"text (3)", state.moreInfoDescription}};
}

Standings newVideoFigures(Game& twin) {
  const GameState& state = twin.state;
  const std::vector<Director> directors = drawDirectors(twin);
  VideoDraft draft{.songId = 15, .style = 4, .director = directors[3], .promotion = 2, .cameos = {}};
  const double dollars = 500 * static_cast<double>(directors[3].rating) + 18'000 + 2'250;
  const std::pair<const char*, int64_t> perPoint[] = {
      {"Animated", 100}, {"Cinematic", 900}, {"Concept", 300}, {"Narrative", 500}, {"Performance", 200}};
  Standings standings = {{"cover: badge", withDecimals(std::min(foreseenRating(state, draft), 100.0), 0)},
                         {"Style: Animated: note", "+25% Views"},
                         {"Style: Cinematic: note", "+15 Production Rating"},
                         {"Style: Concept: note", "+6 Virality"},
                         {"Style: Lyric: note", "Free & -50% Views"},
                         {"Style: Narrative: note", "+10 Marketing"},
                         {"Style: Performance: note", "+50% Views"},
                         {"Promotion: Local: note", "Marketing +1 to +10"},
                         {"Promotion: Local: price", "$250"},
                         {"Promotion: State: note", "Marketing +10 to +25"},
                         {"Promotion: State: price", "$2,250"},
                         {"Promotion: Regional: note", "Marketing +25 to +40"},
                         {"Promotion: Regional: price", "$18,000"},
                         {"Promotion: National: note", "Marketing +40 to +80"},
                         {"Promotion: National: price", "$85,000"},
                         {"Promotion: Global: note", "Marketing +80 to +135"},
                         {"Promotion: Global: price", "$450,000"},
                         {"Cameos", "", "goToCameos"},
                         {"style, director, promotion, cameos", currency(dollars)},
                         {"left", currency(state.totalCashAvailable - dollars)},
                         {"CREATE: price", priceText({25, dollars})}};
  for (const auto& [style, cost] : perPoint) {
    standings.push_back(
        {std::string("Style: ") + style + ": price", currency(static_cast<double>(cost * directors[3].rating))});
  }
  const char* costs[] = {"", "$2,250", "$7,500", "$18,000", "$36,000", "$56,250"};
  for (size_t i = 0; i < directors.size(); ++i) {
    const std::string where = "Director: " + directors[i].name;
    standings.push_back({where + ": note", "Rating | " + std::to_string(directors[i].rating)});
    if (i > 0) standings.push_back({where + ": price", costs[i]});
  }
  return standings;
}

Standings cameoFigures(Game& twin) {
  const int64_t skill = overallSkillRating(twin.state);
  Standings standings = {{"subtitle", "1 of 3 added"}, {"Your skill rating", std::to_string(skill)}};
  for (const CelebrityCameo& cameo : cameoTable(twin.state)) {
    const std::string shy =
        cameo.minimumRating > skill ? "\nAsks for a skill of " + std::to_string(cameo.minimumRating) : "";
    standings.push_back({cameo.name + ": subtitle", "Rating " + withDecimals(cameo.rating, 0) + " · Virality " +
                                                        withDecimals(cameo.virality, 0) + shy});
    standings.push_back({cameo.name + ": price", currency(static_cast<double>(cameo.cost))});
  }
  return standings;
}

std::vector<ScreenFigures> screens() {
  return {
      {.segue = "goToYouVideo", .figures = channelFigures},
      {.segue = "goToYouViewVideoDetail", .argument = "31", .figures = filmFigures},
      {.segue = "goToYouVideoDetailDescription", .argument = "31", .figures = descriptionFigures},
      {.segue = "goToYouDescription", .figures = aboutFigures},
      {.segue = "goToYouEditDescription",
       .figures =
           [](Game& twin) {
             return Standings{{"Description", twin.state.aboutDescription},
                              {"More info", twin.state.moreInfoDescription}};
           }},
      {.segue = "goToCreateMusicVideo",
       .argument = "15",
       .figures = newVideoFigures,
       .presses = {{"style", "4"}, {"director", "3"}, {"promotion", "2"}}},
      {.segue = "goToCameos", .figures = cameoFigures, .presses = {{"add:1", ""}}},
  };
}

const FiguresOf video{.furnish = furnish, .screens = screens};

}  // namespace

}  // namespace backbeat
