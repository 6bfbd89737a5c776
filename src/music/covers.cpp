#include "music/covers.h"

#include <algorithm>

#include "core/pictures.h"

namespace backbeat {

namespace {

/// Empty when the album has no cover of its own.
Picture chosenCover(const GameState& state, int64_t albumId) {
  const RecordList<AlbumCover>& covers = state.saveAllAlbumCovers;
  const size_t found = covers.find([&](const AlbumCover& chosen) { return chosen.albumId == albumId; });
  if (found == covers.size() || covers[found].imageString.empty()) return {};
  return pictureOf(covers[found].imageString);
}

Picture coverFor(const GameState& state, int64_t albumId, const std::string& title) {
  Picture chosen = albumId == 0 ? Picture() : chosenCover(state, albumId);
  return chosen.kind == Picture::Kind::none ? cover(title) : chosen;
}

}  // namespace

Picture pictureOf(const std::string& imageString) {
  if (imageString.starts_with("data:")) return {Picture::Kind::photo, imageString};
  return cover(imageString);
}

Picture coverOf(const GameState& state, const Album& album) { return coverFor(state, album.albumId, album.title); }

Picture coverOf(const GameState& state, const Song& song) { return coverFor(state, song.albumId, song.title); }

Picture coverOfSong(const GameState& state, int64_t songId, const std::string& title) {
  const auto found = state.saveAllSongList.historyOf(songId);
  return found.empty() ? cover(title) : coverOf(state, state.saveAllSongList[found.front()]);
}

Picture stillOf(const GameState& state, const MusicVideo& video) {
  const auto style = static_cast<size_t>(std::clamp<int64_t>(video.styleOfVideo, 0, stillForms.size() - 1));
  return stillOf(state, video.songTitle, style, video.director);
}

Picture stillOf(const GameState& state, const std::string& songTitle, size_t style, const std::string& director) {
  return drawn(Picture::Kind::still, stillForms[style], songTitle + "\n" + state.myArtistsName + "\n" + director);
}

}  // namespace backbeat
