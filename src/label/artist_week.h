// What a week does to the artists of the label.
#pragma once

#include "core/game.h"

namespace backbeat {

/// Draws how many listeners a week adds; talent multiplies it.
int64_t listenerGrowth(Random& random, int64_t listeners, int64_t talent);

/// One week of every artist under contract: listeners grow, the album comes nearer, the happiness follows the scouts
/// and a trait may drift with it. Where the contract is up only the happiness falls. Runs after the week of the staff.
void updateSignedArtistsWeekly(Game& game);

}  // namespace backbeat
