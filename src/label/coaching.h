// An hour with an artist of the label.
#pragma once

#include "core/game.h"
#include "core/outcome.h"
#include "core/price.h"

namespace backbeat {

/// A better leader coaches for less.
Price coachingCost(const GameState& state);

/// Raises a trait by 1, up to 110, or the happiness by 2, or nothing: the luck decides. The energy stays spent either
/// way, also where a trait has no room left: intended. Refused without the energy; nothing without a contract.
Outcome coachArtist(Game& game, int64_t artistId);

}  // namespace backbeat
