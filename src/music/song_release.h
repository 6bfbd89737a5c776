// A song between its making and its release: boosts, release, announcement.
#pragma once

#include <optional>

#include "core/game.h"
#include "core/outcome.h"
#include "core/price.h"

namespace backbeat {

/// Position of a song by its id.
std::optional<size_t> songPosition(const GameState& state, int64_t songId);

inline constexpr Price releaseCost = {.energy = 10};
inline constexpr double strongMarketing = 80;  ///< a release over this counts as a marketing campaign

/// What the next boost costs; nothing while none is offered (released, boosted nine times, at 100).
std::optional<Price> productionBoostCost(const Song& song);
std::optional<Price> viralityBoostCost(const Song& song);

/// Adds 1.5 to the rating, though the button says 1.0: intended. There is no clamp at 100.
Outcome boostProduction(Game& game, int64_t songId);
/// Adds 0.5 to the virality.
Outcome boostVirality(Game& game, int64_t songId);

/// Releases the song for 10 energy; a released song stays as it is.
Outcome releaseSong(Game& game, int64_t songId);

/// Opens the composer with a text that names the song. A song can be announced once, and only before its release.
Outcome announceSong(const GameState& state, int64_t songId);

}  // namespace backbeat
