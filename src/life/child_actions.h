// What the artist does with a child. Outside the list, and for a child that is not in the family any more, each of
// these does nothing.
#pragma once

#include "core/game.h"
#include "core/outcome.h"
#include "core/price.h"

namespace backbeat {

inline constexpr Price childComplimentCost = {.energy = 2};
inline constexpr Price playMusicCost = {.energy = 5};
inline constexpr Price childQualityTimeCost = {.energy = 10};
inline constexpr Price abandonmentCost = {.energy = 50};

/// A point of admiration, half the time.
Outcome complimentChild(Game& game, int64_t index);

/// A lullaby in the first three years, later a lesson; by luck a point of talent or of admiration.
Outcome playMusic(Game& game, int64_t index);

/// Up to two points of admiration.
Outcome qualityTimeWithChild(Game& game, int64_t index);

/// Asks first; `confirmed` is sent to go through with it. Refused without the energy.
Outcome askToAbandon(const Game& game, int64_t index, Action confirmed);
/// The child goes for good. It takes half of the child's weekly energy from the ceiling, rounded down, and admiration
/// from every brother and sister.
Outcome abandonChild(Game& game, int64_t index);

}  // namespace backbeat
