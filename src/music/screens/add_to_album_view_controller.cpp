#include "music/screens/add_to_album_view_controller.h"

#include "music/album_release.h"
#include "music/screens/album_rows.h"
#include "music/song_release.h"

namespace backbeat {

Outcome AddToAlbumViewController::act(const Action& action) {
  if (action.id == "albums") albums_.moveTo(action.value);
  if (action.verb() != "album") return {};
  const auto id = wholeNumber(action.argument());
  for (const size_t position : albumsOpenTo(state(), songId_)) {
    const Album& album = state().saveAllAlbumList[position];
    if (album.albumId == id) return addSongToAlbum(game_, songId_, album.title);
  }
  return {};
}

View AddToAlbumViewController::view() const {
  View view{.title = "Add to album"};
  const auto song = songPosition(state(), songId_);
  if (song) view.subtitle = state().saveAllSongList[*song].title;
  const std::vector<size_t> positions = albumsOpenTo(state(), songId_);
  if (positions.empty()) {
    const bool isOut = song && state().saveAllSongList[*song].isReleased;
    view.add(
        EmptyHint{.icon = "album",
                  .text = isOut ? "The song is out. It stays on the album it came with."
                                : "The song is on the only album in production. Create another one on the Music tab."});
    return view;
  }
  view.add(windowedRows("albums", albums_, static_cast<int64_t>(positions.size()), [&](size_t i) {
    Row row = albumRow(state(), state().saveAllAlbumList[positions[i]]);
    row.opens = false;
    return row;
  }));
  view.help =
      Help{.title = "Songs and albums",
           .text =
               "A song moves to the album you press and comes out with it at the latest. You can still release it "
               "as a single before."};
  return view;
}

}  // namespace backbeat
