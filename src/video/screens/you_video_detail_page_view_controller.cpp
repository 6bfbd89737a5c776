#include "video/screens/you_video_detail_page_view_controller.h"

#include <cmath>

#include "core/money.h"
#include "core/numbers.h"
#include "core/text.h"
#include "core/view_words.h"
#include "music/covers.h"
#include "music/screens/statistics.h"
#include "video/channel.h"
#include "video/comments.h"
#include "video/weekly_views.h"

namespace backbeat {

namespace {

constexpr size_t weeksOnGraph = 26;
constexpr size_t descriptionShown = 72;

std::string lifeOf(const GameState& state, const MusicVideo& video) {
  const double life = remainingLife(state, video);
  return life > 0 ? counted(truncate(std::ceil(life)), "week") + " left" : "Nobody watches it any more";
}

std::string beginningOf(std::string text) {
  text = text.substr(0, text.find('\n'));
  return firstCharacters(text, descriptionShown) + " ...tap for more";
}

void describeComments(View& view, const GameState& state, const MusicVideo& video) {
  view.add(Heading{"Comments"});
  if (video.comments < 1) {
    view.add(EmptyHint{.icon = "message", .text = "Nobody has said a word yet."});
    return;
  }
  Rows comments;
  for (const VideoComment& comment : commentsOn(state, video)) {
    comments.items.push_back({.picture = person(std::string(comment.author)),
                              .title = std::string(comment.author),
                              .subtitle = std::string(comment.text)});
  }
  view.add(std::move(comments));
}

}  // namespace

Outcome YouVideoDetailPageViewController::act(const Action& action) {
  if (videoPosition(state(), videoId_) == state().saveAllMusicVideoList.size()) return {};
  if (action.id == "descriptionButton") return goTo("goToYouVideoDetailDescription", std::to_string(videoId_));
  return {};
}

View YouVideoDetailPageViewController::view() const {
  View view{.title = "YouVideo", .theme = Theme::video};
  const size_t position = videoPosition(state(), videoId_);
  if (position == state().saveAllMusicVideoList.size()) {
    view.add(EmptyHint{.icon = "film", .text = "This video is no longer there."});
    return view;
  }
  const MusicVideo& video = state().saveAllMusicVideoList[position];
  view.add(Cover{.picture = stillOf(state(), video),
                 .title = videoTitle(video),
                 .text = videoViews(video) + " · " + videoAge(state(), video)});
  view.add(Tiles{{{.icon = "thumb", .label = "Likes", .value = abbreviated(static_cast<double>(video.likes))},
                  {.icon = "message", .label = "Comments", .value = abbreviated(static_cast<double>(video.comments))},
                  {.icon = "star", .label = "Rating", .value = withDecimals(video.productionRating, 1)}}});
  view.add(
      Rows{{wayTo("descriptionButton", "document", "Description", beginningOf(videoDescription(state(), video)))}});
  Chart views = viewsChart(state(), video, weeksOnGraph);
  views.note = lifeOf(state(), video);
  view.add(std::move(views));
  describeComments(view, state(), video);
  return view;
}

}  // namespace backbeat
