// The life of a heavy artist beside the work: a match a month, dates, weddings and divorces, children, homes, vehicles,
// startups, awards, and one heir who takes over, as early as may be.
#pragma once

#include <string>

#include "core/game.h"

namespace backbeat {

/// What all of it takes in a week. It costs what it costs: the purse has to be full.
void liveFamilyWeek(Game& game);

/// "generation 2; 260 matches, 21 children, 27 homes, ...": what the lists of this life hold.
std::string familyIn(const GameState& state);

}  // namespace backbeat
