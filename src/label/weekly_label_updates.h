// What a week does to the label's staff and artists.
#pragma once

#include "core/game.h"

namespace backbeat {

/// Staff tire by their burn, faster where they have too many artists, and recover by the perks; their happiness
/// follows, and in time their rating. Without staff nothing happens.
void updateEmployeesWeekly(Game& game);

/// Artists grow and grow unhappy.
void updateSignedArtistsWeekly(Game& game);

}  // namespace backbeat
