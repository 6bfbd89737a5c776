// What the artist owns is worth. The one valuation of the fortune.
#pragma once

#include "core/game.h"

namespace backbeat {

/// The stakes in startups that have not exited, each at its last valuation, in dollars.
double venturesValue(const GameState& state);

/// The houses at today's market: what was paid, moved by the change of the index since.
double propertiesValue(const GameState& state);

/// The vehicles, each 2.5 % of its price cheaper for every year; there is no floor, so that very old ones count below
/// 0: intended.
double transportationValue(const GameState& state);

/// All of that and the cash; may be negative.
double netAssets(const GameState& state);

}  // namespace backbeat
