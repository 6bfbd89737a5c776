// A Chirp as the feed and the week's report show it.
#pragma once

#include <string>

#include "core/game_state.h"
#include "core/view.h"

namespace backbeat {

/// "@paperlanterns": the name without blanks, small.
std::string handleOf(const std::string& name);

/// Without what can be done to it.
Post postOf(const GameState& state, const Chirp& chirp, Date now);

}  // namespace backbeat
