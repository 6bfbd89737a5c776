// How good an artist is, in one figure: each of these means counts one trait twice.
#pragma once

#include "core/game_state.h"

namespace backbeat {

/// The artist's skill as others see it: the five traits and the best of them again, over 6. The best counts twice.
int64_t overallSkillRating(const GameState& state);

/// The artist's talent when no guest helps: the five traits and the weakest of them again, that one up to 110, over 6.
int64_t talent(const GameState& state);

/// A signed artist's rating: the five traits and the weakest of them again, that one up to 100 (110 for the player:
/// intended), over 6.
int64_t artistRating(const SignedArtist& artist);

}  // namespace backbeat
