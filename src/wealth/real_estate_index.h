// The drifting index of the property market.
#pragma once

#include "core/game.h"

namespace backbeat {

/// Step 15 of the turn: the index moves by up to 0.01 either way. At the ends of its range it clamps to 0.51 and 1.49,
/// just inside them: intended.
void driftRealEstateIndex(Game& game);

}  // namespace backbeat
