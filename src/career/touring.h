// What of a tour concerns those who come before the stage: the contract that calls its shows off, and next week's
// energy.
#pragma once

#include "core/game.h"

namespace backbeat {

/// Only who is signed, or has a label of their own, goes on tour.
bool mayTour(const GameState& state);

/// Position of the first venue that a tour still has to play, or the list's size. A tour begins only after the one
/// before it has ended, so that what is to come stands at the end.
size_t firstVenueToCome(const GameState& state);

/// Whether the tour is over with this week's show.
bool tourEndsThisWeek(const GameState& state);

/// Weeks of rest after a tour: 52 to 70.
int64_t drawRestAfterTour(Random& random);

}  // namespace backbeat
