// The way back to the beginning.
#pragma once

#include "core/game.h"

namespace backbeat {

/// Puts what lives no longer than `last` back to the values that a fresh game starts with, and writes it. It removes no
/// key.
void endLives(Game& game, Lifetime last);

/// What only this launch knows of the old life goes with it; what a launch does once stays done.
void forgetLaunch(Game& game);

/// Begins anew. What outlives every artist stays: bought energy, achievements, the family's legacy, first-use memory,
/// the changed names of guests and cameos, high scores. While energy is there for good, so does the mark of packs.
void restartGame(Game& game);

/// Gives a career its number, unless it has one. It follows from the hour and the name, so that no draw is spent.
void numberCareer(Game& game);

}  // namespace backbeat
