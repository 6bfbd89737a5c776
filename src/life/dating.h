// The dating app: who comes up, what a swipe costs, and who likes back.
#pragma once

#include "core/game.h"
#include "core/outcome.h"
#include "core/price.h"

namespace backbeat {

inline constexpr Price swipeCost = {.energy = 3};

/// `Dating::seekingPreference`.
inline constexpr int64_t seekingMan = 0;
inline constexpr int64_t seekingWoman = 1;

/// Puts somebody new on the card. Takes nothing. Two achievements are reached by who comes up.
void drawMatchCandidate(Game& game);

/// How a card is answered: each way has its own words for tired fingers.
enum class Swipe { left, cross, right, heart, star };

/// Answers the card for 3 energy and draws the next one. Who likes back opens the screen of the match. Refused without
/// the energy.
Outcome swipe(Game& game, Swipe way);

/// Writes to who liked back: from here on there is a record, with its answer already fixed. Does nothing when nobody
/// did.
Outcome createMatchRecord(Game& game);

/// Forgets who liked back.
void keepSwiping(Game& game);

/// What energy somebody of that chemistry and maintenance gives, 0 or more.
int64_t candidateEnergy(double chemistry, int64_t maintenance);

}  // namespace backbeat
