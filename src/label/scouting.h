// The artists that the label's scouts find, and what can be heard of them.
#pragma once

#include <vector>

#include "core/game.h"
#include "core/outcome.h"
#include "core/price.h"
#include "label/scouted_artist.h"

namespace backbeat {

inline constexpr Price demoCost = {.energy = 5};

/// Between which levels the traits of whoever is found lie, both ends included.
struct ScoutingBounds {
  int64_t scouts = 0;  ///< staff of Artist & Repertoire
  int64_t minTraitRatings = 10;
  int64_t maxTraitRatings = 10;
};
ScoutingBounds scoutingBounds(const GameState& state);

/// At the door of the scouts. Refused without anybody there.
Outcome openScouting(Game& game);

/// Draws a new list. The artists that the player made up stand first; how many others are found follows from the best
/// trait that there can be, and often nobody is.
std::vector<ScoutedArtist> generateScoutingList(Game& game);

/// Whether the artist can still be had: one that the player made up may have signed, or moved up in the list.
bool isStillFree(const GameState& state, const ScoutedArtist& artist);

/// How good the artist's work turns out in the player's studio, two decimals; `viralityRoll` is one of
/// `drawViralityRoll`. A weak studio drags everybody down.
double demoRating(Random& random, int64_t studio, const ScoutedArtist& artist, double viralityRoll);

/// Draws the monthly listeners of somebody of that rating.
int64_t drawListeners(Random& random, int64_t rating);

/// Hears the demo and sits down with the artist. Refused without the energy.
Outcome listenToDemo(Game& game, const ScoutedArtist& artist);

}  // namespace backbeat
