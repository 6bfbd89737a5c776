#include "shell/export_reminder.h"

namespace backbeat {

namespace {

constexpr int64_t remindedWeeks = 4;
constexpr int64_t weeksOfAYear = 52;

}  // namespace

bool exportIsDue(const Game& game) {
  const GameState& state = game.state;
  const bool yearIsOver = state.weekNumberForTracking > weeksOfAYear && state.weekNumber <= remindedWeeks;
  return yearIsOver && game.launch.exportedInYear != state.yearNumber;
}

}  // namespace backbeat
