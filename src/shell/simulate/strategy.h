// Ways to live a career. Each decides from what a player sees and from the state everybody can read, and presses; none
// changes the state itself. A new strategy is one class and one line in the table.
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string_view>

#include "shell/simulate/player.h"

namespace backbeat {

class Strategy {
 public:
  virtual ~Strategy() = default;
  /// A week from its first press to the end of its report. `week` counts from 1.
  virtual void playWeek(Player& player, int64_t week) = 0;
};

struct StrategyEntry {
  std::string_view name;
  std::string_view what;  ///< how it plays, in a few words
  std::unique_ptr<Strategy> (*make)();
};

/// From the laziest to the most ambitious.
std::span<const StrategyEntry> strategies();

/// The strategy of that name, or nullptr.
const StrategyEntry* strategyNamed(std::string_view name);

}  // namespace backbeat
