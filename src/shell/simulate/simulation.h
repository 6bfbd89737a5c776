// Whole careers, played without a page by as many threads as one likes.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "shell/simulate/career_year.h"
#include "shell/simulate/strategy.h"
#include "shell/simulate/turn_profile.h"

namespace backbeat {

struct SimulationPlan {
  const StrategyEntry* strategy = nullptr;
  uint64_t firstSeed = 1;  ///< careers have this one, the next, and so on
  int64_t careers = 1;
  int64_t years = 10;
  int64_t jobs = 1;
  bool profiles = false;  ///< measures every turn
};

struct Career {
  uint64_t seed = 0;
  std::vector<CareerYear> years;
  std::vector<std::string> problems;  ///< steps that the strategy wanted to make and could not
  std::vector<std::string> trace;     ///< of the plan's first career alone
  std::string hash;                   ///< fingerprint of where it ends
};

/// One career from its first press on. The same strategy and seed give the same career, whatever is played beside it.
/// `profile`, when there is one, is told of every turn.
Career playCareer(const StrategyEntry& strategy, uint64_t seed, int64_t years, TurnProfile* profile);

struct Simulation {
  std::vector<Career> careers;  ///< in the order of their seeds
  TurnProfile profile;
};

/// Plays the plan. `done` hears of every career, in the order of their seeds, one at a time, as soon as it and all
/// those before it are played.
Simulation simulate(const SimulationPlan& plan, const std::function<void(const Career&)>& done);

}  // namespace backbeat
