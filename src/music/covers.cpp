#include "music/covers.h"

#include <algorithm>

#include "core/pictures.h"

namespace backbeat {

namespace {

constexpr size_t mostInFan = 2;

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

void fanOutCovers(Row& row, const GameState& state, std::span<const int64_t> songIds) {
  std::vector<Picture> covers;
  for (const int64_t songId : songIds) {
    const auto found = state.saveAllSongList.historyOf(songId);
    if (found.empty()) continue;
    Picture sleeve = coverOf(state, state.saveAllSongList[found.front()]);
    const bool isKnown = std::any_of(covers.begin(), covers.end(), [&](const Picture& other) {
      return other.kind == sleeve.kind && other.name == sleeve.name;
    });
    if (!isKnown) covers.push_back(std::move(sleeve));
    if (covers.size() > mostInFan) break;
  }
  if (covers.empty()) return;
  row.picture = covers.front();
  row.fan.assign(covers.begin() + 1, covers.end());
}

Picture stillOf(const GameState& state, const MusicVideo& video) {
  const auto style = static_cast<size_t>(std::clamp<int64_t>(video.styleOfVideo, 0, stillForms.size() - 1));
  return stillOf(state, video.songTitle, style, video.director);
}

Picture stillOf(const GameState& state, const std::string& songTitle, size_t style, const std::string& director) {
  return drawn(Picture::Kind::still, stillForms[style], songTitle + "\n" + state.myArtistsName + "\n" + director);
}

}  // namespace backbeat
