// What the invitation and its set list say alike.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "core/game_state.h"
#include "core/view.h"

namespace backbeat {

/// "11 of 15".
std::string setListCount(const std::vector<int64_t>& setList);

/// Nullptr when the song is gone or not out.
const Song* releasedSongOf(const GameState& state, int64_t songId);

}  // namespace backbeat
