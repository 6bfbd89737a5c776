// What the artist owns is worth. The one valuation of the fortune.
#pragma once

#include "core/game.h"

namespace backbeat {

/// What a stake is worth at the company's last valuation, in dollars, whether the company still runs or not.
double estimateOf(const Venture& venture);
/// The stakes in startups that have not exited, each at its last valuation, in dollars.
double venturesValue(const GameState& state);

/// What a home brings at today's market: what was paid, moved by the difference of the indexes, which are not set in
/// proportion. Intended.
double estimateOf(const GameState& state, const InvestmentProperty& home);
/// The sum over all homes.
double propertiesValue(const GameState& state);

/// What a vehicle brings: 2.5 % of its price less for every year. There is no floor, so that after forty years it is a
/// debt: intended.
double estimateOf(const GameState& state, const Transportation& vehicle);
/// The sum over all vehicles.
double transportationValue(const GameState& state);

/// All of that and the cash; may be negative.
double netAssets(const GameState& state);

}  // namespace backbeat
