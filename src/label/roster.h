// The artists of the label: how each stands.
#pragma once

#include <cstdint>
#include <string_view>

#include "core/game_state.h"
#include "label/scouted_artist.h"

namespace backbeat {

/// Position of the artist of that id among the signed ones, or the size of the list. Found through an index.
size_t artistPosition(const GameState& state, int64_t artistId);

/// Weeks that the contract still runs; below 1 it is up.
int64_t weeksLeft(const GameState& state, const SignedArtist& artist);

/// Whether an artist of the label waits for a new contract, or to be let go.
bool contractIsUp(const GameState& state, const SignedArtist& artist);

/// Whether a finished album can be reviewed. While the contract is up it has to wait.
bool albumWaits(const GameState& state, const SignedArtist& artist);

/// The artists of whom one of these two holds: how many, and the first of them.
struct DueArtists {
  const SignedArtist* first = nullptr;
  int64_t count = 0;
};
DueArtists dueArtists(const GameState& state, bool (*isDue)(const GameState&, const SignedArtist&));

/// What the artist plays, always the same. It follows from the id and is kept nowhere.
std::string_view genreOf(int64_t artistId);

/// The artist with today's traits, as the studio hears them.
ScoutedArtist asScouted(const SignedArtist& artist);

}  // namespace backbeat
