// The heavy career of an artist who runs a label besides, never clears anything up and renews every contract: albums
// are reviewed in the week in which they are complete, and staff and artists are kept at the level at which they came.
#pragma once

#include "core/game.h"

namespace backbeat {

/// What the artist and the head of a label of twenty artists does between two weeks. The first call founds it.
void liveLabelWeek(Game& game);

/// The same with as many artists as the largest office has booths for, and all its desks taken.
void liveFullLabelWeek(Game& game);

/// How many rows the label's weeks have left.
size_t signedRowsIn(const GameState& state);

}  // namespace backbeat
