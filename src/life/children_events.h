// What a week does to the artist's children.
#pragma once

#include "core/game.h"
#include "core/outcome.h"

namespace backbeat {

/// Runs once a week, as the report closes. Tells who has died and who has left home.
Outcome weeklyChildUpdate(Game& game);

}  // namespace backbeat
