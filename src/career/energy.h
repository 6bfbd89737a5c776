// The weekly energy budget.
#pragma once

#include "core/game.h"

namespace backbeat {

/// What the week's standing duties cost in energy: job, tour, label, merchandise, children.
int64_t standingEnergyCosts(const GameState& state);

/// Step 12 of the turn: energy refills to the ceiling, or stays where it is above it, less the standing costs, down to
/// 0. Energy left below the ceiling is not carried over.
void applyWeeklyEnergy(Game& game);

/// The energy that the coming week starts with as things stand; a job whose contract has run out and a tour whose last
/// show is this week's cost none by then.
int64_t nextWeeksEnergy(const GameState& state);

}  // namespace backbeat
