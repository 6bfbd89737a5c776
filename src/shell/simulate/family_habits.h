// What people do for love and family, as presses.
#pragma once

#include <cstdint>

#include "shell/simulate/player.h"

namespace backbeat {

struct FamilyPlan {
  int64_t swipes = 8;       ///< a week, while nobody is there
  int64_t dates = 3;        ///< at most so many things done with the partner in a week
  int64_t children = 1;     ///< in the family; no more are wished for
  int64_t energyKept = 40;  ///< what love may not take
};

/// All of what follows but the end, as often as it takes.
void liveWithFamily(Player& player, const FamilyPlan& plan, int64_t week);

/// While single: asks out who waits, else swipes and writes to who likes back.
void lookForLove(Player& player, const FamilyPlan& plan);

/// Keeps the partner happy, and takes the next step when nothing but the artist holds it up: the plainest ring, a
/// wedding with a prenup, a child; an adopted one when the two are too old for their own.
void lookAfterPartner(Player& player, const FamilyPlan& plan);

/// Names the newborn; sings to each child that has not left home, or teaches it, and tells it something nice.
void raiseChildren(Player& player);

/// Whether a child of at least `age` years could take over.
bool heirWaits(const GameState& state, int64_t age);

/// Retires for the first child that is of age and at least `age` years old; false when there is none, or no energy for
/// it.
bool retire(Player& player, int64_t age);

}  // namespace backbeat
