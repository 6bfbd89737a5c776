// Cutting old records down by hand: what a career of decades no longer needs.
#pragma once

#include "core/game.h"
#include "core/outcome.h"

namespace backbeat {

/// What an optimisation would remove: released songs and albums from before the cut-off years, the player's own from
/// twenty years back, those of signed artists from ten.
struct PruningCounts {
  int64_t ownYear = 0;  ///< the first year that is kept
  int64_t songs = 0;
  int64_t albums = 0;
  int64_t signedYear = 0;
  int64_t signedSongs = 0;
  int64_t signedAlbums = 0;
};
PruningCounts countForPruning(const GameState& state);

/// Removes them, and every weekly record from before the same years. What is in production is never removed. A song
/// that keeps living without its weekly records streams nothing from then on.
Outcome optimize(Game& game);

/// Empties the venture portfolio, so that every company can be invested in again. The biggest exit stays.
Outcome resetStartups(Game& game);

}  // namespace backbeat
