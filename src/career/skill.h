// How good an artist is, in one figure, and how good a piece of work turns out.
#pragma once

#include <array>
#include <initializer_list>

#include "core/game_state.h"
#include "core/random.h"

namespace backbeat {

/// The artist's skill as others see it: the five traits and the best of them again, over 6. The best counts twice.
int64_t overallSkillRating(const GameState& state);

/// The artist's talent when no guest helps: the five traits and the weakest of them again, that one up to 110, over 6.
int64_t talent(const GameState& state);

/// Five levels and the weakest of them again, that one up to 100, over 6.
int64_t weakestCountedTwice(const std::array<int64_t, 5>& levels);

/// A signed artist's rating, by the five traits: the weakest counts twice, up to 100 (110 for the player: intended).
int64_t artistRating(const SignedArtist& artist);

/// Per cent of the earnings that a signed artist keeps.
int64_t royaltyOf(const SignedArtist& artist);

/// How far a piece of work catches on: up to three quarters of the virality of whoever makes it, two decimals.
double drawViralityRoll(Random& random, int64_t virality);

/// Rating of a piece of work, two decimals: nearly the mean of what goes into it and the virality roll, counted with
/// one share of luck, which lies between the worst that goes in, that one up to 100, and the mean. When even the mean
/// is below the worst, luck begins at half the mean.
double qualityRoll(Random& random, std::initializer_list<double> inputs, double viralityRoll);

}  // namespace backbeat
