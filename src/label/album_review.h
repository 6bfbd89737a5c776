// How an artist's finished album becomes songs, and what can still be taken off it.
#pragma once

#include <string>

#include "core/game.h"
#include "core/outcome.h"
#include "core/price.h"

namespace backbeat {

inline constexpr Price reviewCost = {.energy = 5};
inline constexpr int64_t mostSongsTakenOff = 2;

/// The finished album comes out with 8 to 11 songs, the feed hears of it, and the next one is begun; the way leads to
/// its songs. Refused without the energy; nothing while no album waits.
Outcome reviewSongList(Game& game, int64_t artistId);

/// Whether songs can still go: in the week in which the album was reviewed.
bool canBeTrimmed(const GameState& state, const SignedArtistAlbum& album);

/// Asks before the song goes; the answer sends `confirmed`. Refused when two have gone already.
Outcome askToRemoveSong(const Game& game, int64_t songId, Action confirmed);

/// The song is gone for good, and the album rates as the mean of those that stay: no longer an eighth of their sum,
/// which it had when it came out. Intended. Refused as above; the count is forgotten with the launch.
Outcome removeSong(Game& game, int64_t songId);

/// Position of the album, or the size of the list.
size_t signedAlbumPosition(const GameState& state, int64_t albumId);

/// "1st", "2nd", "11th".
std::string ordinal(int64_t number);

}  // namespace backbeat
