// What a week does to startups.
#pragma once

#include "core/game.h"

namespace backbeat {

/// Valuations walk. Without a stake nothing happens.
void updateVentureValuations(Game& game);

/// Startups are sold or go public. Without a stake nothing happens.
void resolveVentureExits(Game& game);

}  // namespace backbeat
