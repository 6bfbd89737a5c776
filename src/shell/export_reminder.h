// A browser may forget what it keeps, and a disk may break: once a year the game asks for a copy elsewhere.
#pragma once

#include "core/game.h"

namespace backbeat {

/// In the first four weeks of a year, but for the career's first, and until the career was exported in this launch.
bool exportIsDue(const Game& game);

}  // namespace backbeat
