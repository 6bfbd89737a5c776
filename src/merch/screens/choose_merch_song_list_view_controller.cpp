#include "merch/screens/choose_merch_song_list_view_controller.h"

#include <algorithm>

#include "core/money.h"
#include "core/sorting.h"
#include "merch/product_launch.h"
#include "music/covers.h"
#include "music/screens/song_rows.h"

namespace backbeat {

namespace {

bool canBeOn(const GameState& state, int64_t songId) { return !songsFor(state, {songId}).empty(); }

}  // namespace

Outcome ChooseMerchSongListViewController::open() {
  std::erase_if(game_.launch.merchSongs, [&](int64_t songId) { return !canBeOn(state(), songId); });
  return {};
}

Outcome ChooseMerchSongListViewController::act(const Action& action) {
  if (action.id == "songs") songs_.moveTo(action.value);
  if (action.id == "doneButton") return closeScreen();
  if (action.verb() != "song") return {};
  const auto songId = wholeNumber(action.argument());
  return songId ? chooseSong(*songId) : Outcome{};
}

Outcome ChooseMerchSongListViewController::chooseSong(int64_t songId) {
  std::vector<int64_t>& chosen = game_.launch.merchSongs;
  if (std::erase(chosen, songId) > 0 || !canBeOn(state(), songId)) return {};
  if (chosen.size() >= mostSongsOnMerch) {
    return refuse<"⚡️ Song Limit Reached ⚡️">("\nYou can only select up to 15 songs.");
  }
  chosen.push_back(songId);
  return success();
}

/// The best first, since good songs sell the record.
std::vector<size_t> ChooseMerchSongListViewController::songsByRating() const {
  const auto& songs = state().saveAllSongList;
  std::vector<size_t> positions = releasedSongs(state());
  sortStably(positions, [&](size_t a, size_t b) { return songs[a].productionRating > songs[b].productionRating; });
  return positions;
}

View ChooseMerchSongListViewController::view() const {
  const std::vector<int64_t>& chosen = game_.launch.merchSongs;
  View view{.title = "Song List",
            .subtitle = std::to_string(chosen.size()) + " of " + std::to_string(mostSongsOnMerch) + " songs",
            .theme = Theme::merch};
  const std::vector<size_t> positions = songsByRating();
  if (positions.empty()) {
    view.add(EmptyHint{.icon = "note", .text = "No song is out yet. Release one and it can be pressed."});
    return view;
  }
  view.add(windowedRows("songs", songs_, static_cast<int64_t>(positions.size()), [&](size_t i) {
    const Song& song = state().saveAllSongList[positions[i]];
    return Row{.picture = coverOf(state(), song),
               .title = song.title,
               .subtitle = song.album,
               .value = withDecimals(song.productionRating, 1),
               .note = "rating",
               .selected = std::find(chosen.begin(), chosen.end(), song.songId) != chosen.end(),
               .id = "song:" + std::to_string(song.songId)};
  }));
  view.mainAction = Button{.id = "doneButton", .label = "Done", .style = Button::Style::primary};
  return view;
}

}  // namespace backbeat
