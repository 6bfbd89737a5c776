// One press of END THE WEEK is one turn: the order of the weekly steps is written down here and nowhere else.
#pragma once

#include <functional>
#include <string_view>

#include "core/game.h"

namespace backbeat {

/// Is told the name of each step as it begins, and "" when the turn is over; for whoever measures them.
using StepObserver = std::function<void(std::string_view step)>;

/// The whole turn. Nothing can refuse it: a week can be ended without energy and without cash. `openReport` opens the
/// weekly report, which settles the week's cash. Steps 1 to 12 are a transaction each; steps 13 to 18 are one, so that
/// calendar and settled cash never part.
void runWeekCycle(Game& game, const std::function<void()>& openReport, const StepObserver& observer = nullptr);

}  // namespace backbeat
