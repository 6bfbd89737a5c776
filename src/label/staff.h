// What the head of the label does with the staff: lead them, or let them go.
#pragma once

#include "core/game.h"
#include "core/outcome.h"
#include "core/price.h"

namespace backbeat {

/// Below this an unhappy employee may lose a point of rating in any week; above the other a happy one may gain one.
inline constexpr double unhappyBelow = 35;
inline constexpr double happyAbove = 85;

/// Eight weeks of the salary.
Price severance(const Employee& employee);

/// A better leader motivates for less.
Price motivationCost(const GameState& state);

/// Asks before the employee goes; the answer sends `confirmed`. Refused while artists need the last one of a
/// department.
Outcome askToFire(const GameState& state, int64_t employeeId, Action confirmed);

/// The employee goes with their salary, and with the last one of a department its bonus. Refused as above, and without
/// the cash for the severance, which stays out of the label's cost.
Outcome fireEmployee(Game& game, int64_t employeeId);

/// The boosts of a week at once, past a hundred until the week ends. Without perks the energy is spent for nothing:
/// intended.
Outcome motivateEmployee(Game& game, int64_t employeeId);

}  // namespace backbeat
