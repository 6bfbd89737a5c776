// The weekly views of music videos.
#pragma once

#include "core/game.h"

namespace backbeat {

/// Step 3 of the turn. Without a video there is nothing to view and nothing is drawn.
void simulateWeeklyVideoViews(Game& game);

}  // namespace backbeat
