// The calendar of the game, and the hour at which somebody would be playing it.
#pragma once

#include <chrono>
#include <cstdint>

#include "core/game_state.h"

namespace backbeat {

inline void setDate(GameState& state, int64_t absoluteWeek) {
  state.weekNumberForTracking = absoluteWeek;
  state.weekNumber = (absoluteWeek - 1) % 52 + 1;
  state.yearNumber = 2023 + (absoluteWeek - 1) / 52;
}

/// A noon in that week of the game, in unix milliseconds.
inline int64_t noonOf(int64_t year, int64_t week) {
  namespace chrono = std::chrono;
  const chrono::sys_days first(chrono::year(static_cast<int>(year)) / chrono::January / 2);
  const auto noon = first + chrono::days(7 * (week - 1)) + chrono::hours(12);
  return chrono::duration_cast<chrono::milliseconds>(noon.time_since_epoch()).count();
}
inline int64_t noonOf(const GameState& state) { return noonOf(state.yearNumber, state.weekNumber); }

/// The same as a date of the game, some weeks earlier.
inline Date dateOf(const GameState& state, int64_t weeksAgo = 0) {
  constexpr double week = 7 * 24 * 3600;
  return {static_cast<double>(noonOf(state)) / 1000 - static_cast<double>(weeksAgo) * week};
}

}  // namespace backbeat
