#include "video/screens/you_video_view_controller.h"

#include <algorithm>

#include "core/money.h"
#include "core/own_photo.h"
#include "core/view_words.h"
#include "music/covers.h"
#include "video/channel.h"

namespace backbeat {

Outcome YouVideoViewController::open() {
  seedSubscribers(game_);
  return {};
}

Outcome YouVideoViewController::act(const Action& action) {
  if (action.id == "subscribeButton") return toggleSubscribe(game_);
  if (action.id == "goToYouDescription") return goTo(action.id);
  if (action.verb() == "video") return goTo("goToYouViewVideoDetail", std::string(action.argument()));
  if (action.verb() == "song") return goTo("goToSongDetail", std::string(action.argument()));
  if (action.id == "films") films_.moveTo(action.value);
  if (action.id == "orderButton") {
    mostViewedFirst_ = !mostViewedFirst_;
    films_ = {};
  }
  return {};
}

View YouVideoViewController::view() const {
  View view{.title = "YouVideo", .theme = Theme::video};
  describeHead(view);
  if (state().saveAllMusicVideoList.empty()) {
    view.add(
        EmptyHint{.icon = "film",
                  .text = "Nothing has been filmed yet. The page of every song that is out has a way to a video."});
    view.add(Rows{{wayTo("goToYouDescription", "info", "About the channel")}});
    return view;
  }
  describeFilms(view);
  return view;
}

void YouVideoViewController::describeHead(View& view) const {
  const auto videos = static_cast<int64_t>(state().saveAllMusicVideoList.size());
  view.add(Cover{.picture = artistPicture(state()),
                 .title = state().myArtistsName,
                 .text = abbreviated(static_cast<double>(state().youVideoSubscriberCount)) + " subscribers · " +
                         withCommas(videos) + " videos"});
  view.add(Text{.text = channelMotto(state())});
  const bool subscribes = state().didSubscribe != 0;
  view.add(Button{.id = "subscribeButton",
                  .label = subscribes ? "Subscribed" : "Subscribe",
                  .style = subscribes ? Button::Style::secondary : Button::Style::primary});
}

void YouVideoViewController::describeFilms(View& view) const {
  const std::vector<size_t> byAge = videosByAge(state());
  Row newest = film(byAge.front());
  newest.badge = "Newest";
  view.add(Rows{.items = {std::move(newest)}, .style = Rows::Style::films});
  view.add(Rows{{wayTo("goToYouDescription", "info", "About the channel")}});
  if (byAge.size() < 2) return;
  view.add(Heading{.text = "Videos",
                   .link = Link{.id = "orderButton", .label = mostViewedFirst_ ? "Newest first" : "Most viewed"}});
  std::vector<size_t> others = mostViewedFirst_ ? videosByViews(state()) : byAge;
  std::erase(others, byAge.front());
  Rows rows =
      windowedRows("films", films_, static_cast<int64_t>(others.size()), [&](size_t i) { return film(others[i]); });
  rows.style = Rows::Style::films;
  view.add(std::move(rows));
}

Row YouVideoViewController::film(size_t position) const {
  const MusicVideo& video = state().saveAllMusicVideoList[position];
  Row row{.picture = stillOf(state(), video),
          .title = videoTitle(video),
          .subtitle = videoViews(video) + " · " + videoAge(state(), video),
          .value = videoLength(video),
          .opens = true,
          .id = "video:" + std::to_string(video.videoId)};
  if (!state().saveAllSongList.historyOf(video.songId).empty()) {
    row.actions = {{.id = "song:" + std::to_string(video.songId), .label = "Go to the song"}};
  }
  return row;
}

}  // namespace backbeat
