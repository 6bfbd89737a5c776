// The streams of other artists' songs with a verse of the player.
#pragma once

#include "core/game.h"

namespace backbeat {

/// Step 7 of the turn; runs with and without a label. Without such a song nothing happens.
void simulateFeaturedOnStreams(Game& game);

}  // namespace backbeat
