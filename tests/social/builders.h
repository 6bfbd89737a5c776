// Posts for a test: sensible values; change what the test is about.
#pragma once

#include <cstdint>
#include <string>

#include "core/game_state.h"

namespace backbeat {

/// A post of the artist, made some weeks before the week that the state stands at, under the next id.
void addChirp(GameState& state, const std::string& message, int64_t weeksAgo);

}  // namespace backbeat
