// The greatest of everything that the artist did, as far as the lists remember.
#pragma once

#include <string>
#include <vector>

#include "core/game_state.h"

namespace backbeat {

struct RecordLine {
  std::string label;
  std::string value;  ///< "-" where there is nothing yet
  std::string note = {};
};

/// From the most popular album to the best exit from a startup, in the order of the profile.
std::vector<RecordLine> careerRecords(const GameState& state);

}  // namespace backbeat
