// What a week does to the label's staff.
#pragma once

#include "core/game.h"

namespace backbeat {

/// Staff tire by their burn, faster where they have too many artists, and recover by the perks; their happiness
/// follows, and in time their rating. Without staff nothing happens.
void updateEmployeesWeekly(Game& game);

}  // namespace backbeat
