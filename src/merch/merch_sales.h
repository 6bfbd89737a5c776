// The weekly sales of merchandise.
#pragma once

#include "core/game.h"

namespace backbeat {

/// Step 9 of the turn. Without a product on sale nothing is drawn.
void sellWeeklyMerch(Game& game);

}  // namespace backbeat
