#include "live/screens/choose_set_list_view_controller.h"

#include <algorithm>
#include <utility>

#include "core/money.h"
#include "core/sorting.h"
#include "core/view_words.h"
#include "live/festival_invitation.h"
#include "live/screens/set_list_words.h"
#include "music/covers.h"

namespace backbeat {

Outcome ChooseSetListViewController::open() {
  std::vector<std::pair<double, int64_t>> byRating;
  for (const Song& song : state().saveAllSongList) {
    if (song.isReleased) byRating.emplace_back(song.productionRating, song.songId);
  }
  sortStably(byRating, [](const auto& a, const auto& b) { return a > b; });
  for (const auto& [rating, songId] : byRating) songs_.push_back(songId);
  return {};
}

Outcome ChooseSetListViewController::act(const Action& action) {
  if (action.id == "closeButton") return closeScreen();
  if (action.id == "songs") window_.moveTo(action.value);
  if (action.verb() == "song") {
    if (const auto songId = wholeNumber(action.argument())) return toggleSetListSong(game_, *songId);
  }
  return {};
}

Row ChooseSetListViewController::describe(int64_t songId) const {
  const Song* song = releasedSongOf(state(), songId);
  if (!song) return {};
  const std::vector<int64_t>& setList = game_.launch.festivalSetList;
  const auto place = std::find(setList.begin(), setList.end(), songId);
  return {.picture = coverOf(state(), *song),
          .title = song->title,
          .subtitle = song->album,
          .value = withDecimals(song->productionRating, 0),
          .note = place == setList.end() ? "rating" : "No. " + std::to_string(place - setList.begin() + 1),
          .tone = toneOfBand(song->productionRating),
          .selected = place != setList.end(),
          .id = "song:" + std::to_string(songId)};
}

View ChooseSetListViewController::view() const {
  const std::vector<int64_t>& setList = game_.launch.festivalSetList;
  View view{.title = "SET LIST (" + std::to_string(setList.size()) + ")", .theme = Theme::live};
  const double average = songSelectionAverage(state(), setList);
  view.add(Meter{.label = "Average rating",
                 .value = withDecimals(average, 0),
                 .share = std::clamp(average / 100, 0.0, 1.0),
                 .tone = toneOfBand(average)});
  if (songs_.empty()) {
    view.add(EmptyHint{.icon = "note", .text = "Nothing of yours is out. Release a song to play it."});
  } else {
    view.add(windowedRows("songs", window_, static_cast<int64_t>(songs_.size()),
                          [&](size_t i) { return describe(songs_[i]); }));
  }
  view.totals = {{.label = "songs", .value = setListCount(setList)},
                 {.label = "average", .value = withDecimals(average, 0), .tone = toneOfBand(average)}};
  view.mainAction = Button{.id = "closeButton", .label = "Done", .style = Button::Style::primary};
  return view;
}

}  // namespace backbeat
