// What the label brings and costs.
#pragma once

#include "core/game_state.h"

namespace backbeat {

/// Dollars that the label's artists brought in the reported week, with its revenue bonus.
double lastWeeksRoyalties(const GameState& state);

/// Dollars that the coming week costs whatever comes in: salaries, perks and rent.
double runningCosts(const GameState& state);

/// Dollars that all weeks still remembered brought, without the bonus. Looks at each of them.
double storedRoyalties(const GameState& state);

}  // namespace backbeat
