// An album between its making and its release: its price, its songs, and the day it comes out.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "core/game.h"
#include "core/outcome.h"
#include "core/price.h"

namespace backbeat {

inline constexpr std::array<double, 5> albumPrices = {3.99, 6.99, 9.99, 12.99, 15.99};  ///< dollars a copy
inline constexpr Price albumReleaseCost = {.energy = 10};
inline constexpr int64_t fewestSongsOnAlbum = 3;

/// Positions of the albums in production, oldest first, without the built-in "Single".
std::vector<size_t> albumsInProduction(const GameState& state);

/// Those of them that the song can still go on: all but the one it is on. None for a song that is not there.
std::vector<size_t> albumsOpenTo(const GameState& state, int64_t songId);

/// Sets what a copy costs; a released album keeps its price. A contract's price stands only until this changes it.
Outcome setAlbumPricing(Game& game, int64_t albumId, double price);

/// Moves a song to the album in production with that title. "Single" loses one of its songs whatever album the song was
/// on, and no other album does; nothing limits the album to twenty songs here. Both intended.
Outcome addSongToAlbum(Game& game, int64_t songId, const std::string& albumTitle);

/// Releases the album and every song on it that is not out yet, for 10 energy; the feed hears of it. Refused with fewer
/// than three songs and without the energy. A released album stays as it is.
Outcome releaseAlbum(Game& game, int64_t albumId);

}  // namespace backbeat
