// The way back to the beginning.
#pragma once

#include "core/game.h"

namespace backbeat {

/// Resets a life, group by group, each writing its keys. Outside it, on purpose: bought energy, achievements, the
/// family's legacy, first-use memory, the changed names of guests and cameos, high scores. It writes zeros; it removes
/// no key.
void restartGame(Game& game);

}  // namespace backbeat
