// How a contract with an artist of the label goes on, or ends.
#pragma once

#include "core/game.h"
#include "core/outcome.h"
#include "core/price.h"

namespace backbeat {

/// The signing bonus once more.
Price renewalCost(const SignedArtist& artist);

/// Years of the next contract: those since the first signing, at most 5, so that they grow with each renewal: intended.
int64_t renewalYears(const SignedArtist& artist);

/// Asks before a contract that is up goes on; the answer sends `confirmed`.
Outcome askToRenew(const GameState& state, int64_t artistId, Action confirmed);

/// The contract goes on from this week. Refused without the cash; nothing before it is up.
Outcome renewContract(Game& game, int64_t artistId);

/// Asks before an artist is let go; the answer sends `confirmed`.
Outcome askToDrop(const GameState& state, int64_t artistId, Action confirmed);

/// The artist leaves for good, and the studio has a place more. What is out stays out and keeps earning: intended.
Outcome dropArtist(Game& game, int64_t artistId);

}  // namespace backbeat
