// What holds for every press of every screen: the price that is shown is the price that is taken, a refusal takes
// nothing, and nobody spends energy that is not there.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "core/game_state.h"
#include "shell/navigator.h"

namespace backbeat {

/// Looks at what is on the glass and in the purse before a press, and again after it.
class PressOracle {
 public:
  void before(const Shown& shown, const GameState& state);

  /// What is wrong with what the press did, or "". A press of what is not offered is only watched for its energy and
  /// for what it changes while it refuses.
  std::string after(std::string_view screenKey, const Action& action, const Shown& now, const GameState& state);

 private:
  struct Pressed {
    std::string_view verb;
    std::string label;
    std::optional<Price> price;
  };

  std::optional<Pressed> pressed(std::string_view screenKey, const Action& action) const;
  std::string nameOf(const Pressed& press) const;
  std::string priceFault(const Pressed& press, const Shown& now, const GameState& state) const;

  Shown shown_;
  int64_t energy_ = 0;
  double cash_ = 0;
  uint64_t hash_ = 0;
  std::optional<Price> asked_;  ///< of the press whose question stands: its answer takes it
};

}  // namespace backbeat
