// What waits for the player, told by the rooms and listed on home: what this week is for.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "core/game.h"
#include "core/outcome.h"
#include "core/view.h"

namespace backbeat {

/// One thing that waits, and the way to it.
struct Need {
  int64_t priority = 0;  ///< the greatest stands first: 300 is over when the week ends, 200 soon, 100 can wait
  Picture picture = {};
  std::string title = {};
  std::string subtitle = {};
  std::optional<Price> price = {};  ///< of the visit
  std::string badge = {};           ///< worn by its row, and by the home tab
  std::string segue = {};
  std::string argument = {};
};

/// At most so many are listed.
inline constexpr size_t mostNeeds = 4;

/// Adds a list of what waits, where anything does: the first of it.
void listNeeds(View& view, const Game& game);

/// Where a press leads; nowhere when it is for nothing that waits.
Outcome followNeed(const Game& game, const Action& action);

/// What the home tab wears: the first badge of what waits, or "".
std::string needsBadge(const Game& game);

}  // namespace backbeat
