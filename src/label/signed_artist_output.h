// What the label's artists stream and sell each week.
#pragma once

#include "core/game.h"

namespace backbeat {

/// Step 6 of the turn, first half; runs while the label is launched.
void simulateSignedArtistStreams(Game& game);

/// Step 6 of the turn, second half.
void simulateSignedArtistAlbumSales(Game& game);

}  // namespace backbeat
