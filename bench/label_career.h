// The heavy career of an artist who runs a label besides, never clears anything up and renews every contract: albums
// are reviewed in the week in which they are complete, and staff and artists are kept at the level at which they came.
// The head of the smaller label has a family and a fortune as well, until the heir takes over and does the same.
#pragma once

#include "core/game.h"

namespace backbeat {

/// What the artist and the head of a label of twenty artists does between two weeks, and with the family
/// (family_career.h). The first call founds the label, and the first of an heir.
void liveEverythingWeek(Game& game);

/// The work alone, with as many artists as the largest office has booths for, and all its desks taken.
void liveFullLabelWeek(Game& game);

/// How many rows the label's weeks have left.
size_t signedRowsIn(const GameState& state);

}  // namespace backbeat
