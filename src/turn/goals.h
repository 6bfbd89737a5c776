// The next step that a career can see.
#pragma once

#include <cstdint>
#include <optional>

#include "core/game_state.h"

namespace backbeat {

struct ListenerGoal {
  int64_t listeners = 0;              ///< above those of now
  bool isLabels = false;              ///< from here on record labels write
  std::optional<int64_t> weeks = {};  ///< at the pace of the last month; nothing while it does not come nearer
};

/// The next power of ten, or the fame from which labels write where that matters and comes first.
ListenerGoal nextListenerGoal(const GameState& state);

}  // namespace backbeat
