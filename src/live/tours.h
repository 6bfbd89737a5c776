// Shows on tour.
#pragma once

#include "core/game.h"

namespace backbeat {

/// Step 4 of the turn: the tour's show of the week. Without a tour nothing happens.
void runWeeklyTourShow(Game& game);

}  // namespace backbeat
