// What a week does to the label's staff and artists.
#pragma once

#include "core/game.h"

namespace backbeat {

/// Staff tire and recover. Without staff nothing happens.
void updateEmployeesWeekly(Game& game);

/// Artists grow and grow unhappy. Without signed artists nothing happens.
void updateSignedArtistsWeekly(Game& game);

}  // namespace backbeat
