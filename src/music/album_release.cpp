#include "music/album_release.h"

#include <algorithm>

#include "career/label_contract.h"
#include "core/calendar.h"
#include "core/purse.h"
#include "music/album_creation.h"
#include "music/song_release.h"
#include "social/chirps.h"

namespace backbeat {

namespace {

constexpr std::array<std::string_view, 4> openings = {
    "Today I'll be releasing my",
    "Dropping today, my",
    "Can't believe it's finished! My",
    "Excited to tell you that my",
};

constexpr std::array<std::string_view, 4> closings = {
    "a brand new album I've poured everything into, enjoy!",
    "streamine now!",  // typed in a hurry, and so it stays
    "thrilled for you to listen!",
    "can't wait for you to listen!",
};

/// Releases the songs that are not out yet, and answers how many. A song released before keeps its date.
int64_t releaseSongsOf(GameState& state, int64_t albumId) {
  int64_t released = 0;
  RecordList<Song>& songs = state.saveAllSongList;
  for (size_t i = 0; i < songs.size(); ++i) {
    if (songs[i].albumId != albumId || songs[i].isReleased) continue;
    songs.update(i, [&](Song& song) {
      song.isReleased = true;
      song.releaseWeek = state.weekNumberForTracking;
      song.releaseYear = state.yearNumber;
    });
    // Each strongly marketed song is a campaign, so one album can be many.
    if (songs[i].marketingScore > strongMarketing) state.globalMarketingCampaigns += 1;
    ++released;
  }
  return released;
}

void announceAlbum(Game& game, const Album& album) {
  const std::string_view opening = game.random.element(openings);
  const std::string_view closing = game.random.element(closings);
  const std::string message = std::string(opening) + " " + std::to_string(album.songCount) + " studio album, " +
                              album.title + " - " + std::string(closing);
  postChirpForArtist(game, message, game.state.followerCount, album.albumId);
}

}  // namespace

std::vector<size_t> albumsInProduction(const GameState& state) {
  std::vector<size_t> positions;
  for (size_t i = 0; i < state.saveAllAlbumList.size(); ++i) {
    const Album& album = state.saveAllAlbumList[i];
    if (!album.isReleased && album.albumId != 0) positions.push_back(i);
  }
  return positions;
}

std::vector<size_t> albumsOpenTo(const GameState& state, int64_t songId) {
  const auto song = songPosition(state, songId);
  if (!song || state.saveAllSongList[*song].isReleased) return {};
  std::vector<size_t> positions = albumsInProduction(state);
  std::erase_if(positions, [&](size_t position) {
    return state.saveAllAlbumList[position].albumId == state.saveAllSongList[*song].albumId;
  });
  return positions;
}

Outcome setAlbumPricing(Game& game, int64_t albumId, double price) {
  const auto position = albumPosition(game.state, albumId);
  if (!position || game.state.saveAllAlbumList[*position].isReleased) return {};
  game.state.saveAllAlbumList.update(*position, [&](Album& album) { album.price = price; });
  game.save(&GameState::saveAllAlbumList);
  stateChanged(game);
  return successAndClose();
}

Outcome addSongToAlbum(Game& game, int64_t songId, const std::string& albumTitle) {
  GameState& state = game.state;
  RecordList<Album>& albums = state.saveAllAlbumList;
  size_t chosen = albums.size();
  for (size_t i = 0; i < albums.size(); ++i) {
    if (!albums[i].isReleased && albums[i].title == albumTitle) chosen = i;
  }
  const auto song = songPosition(state, songId);
  if (chosen == albums.size() || !song) return {};
  const size_t single = albums.find([](const Album& album) { return album.albumId == 0; });
  if (single != albums.size()) {
    albums.update(single, [](Album& album) { album.songCount = std::max(album.songCount - 1, int64_t{0}); });
  }
  const double rating = state.saveAllSongList[*song].productionRating;
  state.saveAllSongList.update(*song, [&](Song& moved) {
    moved.album = albums[chosen].title;
    moved.albumId = albums[chosen].albumId;
  });
  albums.update(chosen, [&](Album& album) {
    const double count = static_cast<double>(album.songCount);
    album.productionRating = (album.productionRating * count + rating) / (count + 1);
    album.songCount += 1;
  });
  game.save(&GameState::saveAllAlbumList, &GameState::saveAllSongList);
  stateChanged(game);
  return successAndClose();
}

Outcome releaseAlbum(Game& game, int64_t albumId) {
  GameState& state = game.state;
  const auto position = albumPosition(state, albumId);
  if (!position || state.saveAllAlbumList[*position].isReleased) return {};
  if (state.saveAllAlbumList[*position].songCount < fewestSongsOnAlbum) {
    return refuse<"🔥 Add Songs 🔥">("\nYou'll need to add at least 3 songs to this album before you can release it.");
  }
  if (!hasEnergy(state, albumReleaseCost)) {
    return noEnergy<"⚡️Not Enough Energy⚡️">("\nYou do not have enough energy to release this album.");
  }
  pay(game, albumReleaseCost);
  state.saveAllAlbumList.update(*position, [&](Album& album) {
    album.isReleased = true;
    album.releaseWeek = state.weekNumberForTracking;
    album.releaseYear = state.yearNumber;
  });
  const Album& album = state.saveAllAlbumList[*position];
  const int64_t released = releaseSongsOf(state, albumId);
  recordAlbumRelease(game, album.songCount, released);
  game.save(&GameState::saveAllAlbumList, &GameState::saveAllSongList);
  announceAlbum(game, album);
  game.save(&GameState::globalMarketingCampaigns);
  stateChanged(game);
  return success();
}

}  // namespace backbeat
