#include "label/screens/signed_artist_song_list_view_controller.h"

#include "core/money.h"
#include "core/view_words.h"
#include "label/accounts.h"
#include "label/album_review.h"
#include "label/roster.h"
#include "label/screens/label_words.h"

namespace backbeat {

namespace {

Row songRow(const SignedArtistSong& song, int64_t number, bool canGo) {
  Row row{.picture = cover(song.title),
          .title = std::to_string(number) + ". " + song.title,
          .value = withDecimals(song.productionRating, 1),
          .note = counted(song.totalListen, "stream"),
          .tone = toneOfBand(song.productionRating)};
  if (song.features.size() > 1) row.subtitle = "feat. " + song.features[1];
  if (song.isExplicit == 1) row.badge = "E";
  if (canGo) {
    row.actions = {{.id = "removeSong:" + std::to_string(song.songId), .label = "Remove Song", .tone = Tone::bad}};
  }
  return row;
}

}  // namespace

Outcome SignedArtistSongListViewController::press(const Action& action) {
  const auto songId = wholeNumber(action.argument());
  if (!songId) return {};
  if (action.verb() == "removeSong") {
    return askToRemoveSong(game_, *songId, {"confirmRemove:" + std::to_string(*songId), ""});
  }
  if (action.verb() == "confirmRemove") return removeSong(game_, *songId);
  return {};
}

void SignedArtistSongListViewController::describe(View& view) const {
  view.title = "Song List";
  const size_t position = signedAlbumPosition(state(), albumId_);
  if (position == state().saveAllSignedArtistAlbumList.size()) {
    view.add(EmptyHint{.icon = "album", .text = "There is no such album."});
    return;
  }
  const SignedArtistAlbum& album = state().saveAllSignedArtistAlbumList[position];
  const size_t artist = artistPosition(state(), album.artistId);
  const bool isSigned = artist != state().saveAllSignedArtistList.size();
  view.add(Cover{.picture = cover(album.title),
                 .title = album.title,
                 .text = isSigned ? state().saveAllSignedArtistList[artist].name : state().myLabelName,
                 .badge = withDecimals(album.productionRating, 1)});
  view.add(Tiles{{{.label = "Sold", .value = withCommas(album.albumsSold), .note = "at " + price(album.price)},
                  {.label = "Earned", .value = currency(earnedBy(labelSums(game_).sales.ofWork, albumId_))},
                  {.label = "Out", .value = std::to_string(album.releaseYear)}}});
  const bool canGo = canBeTrimmed(state(), album);
  if (canGo) view.add(caption("It drops next week. Until then up to two songs can go."));
  Rows songs;
  int64_t number = 0;
  for (const uint32_t i : state().saveAllSignedArtistSongList.historyOf(albumId_)) {
    songs.items.push_back(songRow(state().saveAllSignedArtistSongList[i], ++number, canGo));
  }
  if (songs.items.empty()) {
    view.add(EmptyHint{.icon = "album", .text = "Its songs are not kept any more."});
  } else {
    view.add(std::move(songs));
  }
  view.help =
      Help{.title = "🧐 SONG LIST 🧐",
           .text =
               "\nA song streams for as many weeks as its rating has points, most while its marketing lasts. A longer "
               "album lasts longer and sells more.\n\nTaking a song off is for good, and the album then rates as the "
               "mean of those that stay."};
}

}  // namespace backbeat
