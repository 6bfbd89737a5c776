// What is written of a life when it is over.
#pragma once

#include <string>
#include <vector>

#include "core/game.h"

namespace backbeat {

inline constexpr int64_t albumDiamonds = 5;  ///< `Album::albumAward` from here on

/// What the artist leaves behind, in dollars: all that is owned, as far as a whole number is exact.
double legacyNetWorth(const GameState& state);

/// The life of the artist as it stands, with that child for a successor.
Legacy legacyOf(const GameState& state, const Child& successor);

/// The parents of an artist who took over, the former artist first; none of a first artist.
std::vector<std::string> parentsOfArtist(const GameState& state);

}  // namespace backbeat
