// What the screens of the family say alike.
#pragma once

#include "core/game.h"
#include "core/view.h"

namespace backbeat {

/// How a dynasty is made.
Help childrenHelp();

/// The five talents as bars, empty from 0 down.
Gauges talentBars(const Child& child, std::string note);

/// Where somebody of that age is seen.
std::string_view sceneOf(const GameState& state, const Child& child);

}  // namespace backbeat
