// What helps the makers when a player writes to them.
#pragma once

#include <string>

#include "core/game_state.h"

namespace backbeat {

inline constexpr const char* gameVersion = "1.0.0";

/// The version and how far the career is; no name and no text of the player's.
std::string feedbackFacts(const GameState& state);

}  // namespace backbeat
