// The week that a report tells of.
#pragma once

#include "core/game_state.h"
#include "core/week_rows.h"

namespace backbeat {

/// The week before the one that the calendar shows; week 1 reports week 52 of the year before.
inline CalendarWeek reportedWeek(const GameState& state) {
  if (state.weekNumber == 1) return {52, state.yearNumber - 1};
  return {state.weekNumber - 1, state.yearNumber};
}

}  // namespace backbeat
