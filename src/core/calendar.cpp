#include "core/calendar.h"

#include <algorithm>

namespace backbeat {

namespace {

constexpr int64_t weeksInYear = 52;
constexpr int64_t lowestCeilingOfAge = 25;

}  // namespace

int64_t generationBegan(const GameState& state) { return std::max(state.ageAtTakeover, firstYear); }

void rollCalendar(Game& game) {
  GameState& state = game.state;
  if (state.weekNumber > weeksInYear) {
    state.yearNumber += 1;
    state.weekNumber = 1;
    state.totalEnergyMax = std::max(state.totalEnergyMax - 1, lowestCeilingOfAge);
  } else if (state.weekNumber % 10 == 0) {
    game.launch.leaderboardPassDone = false;
  }
  game.save(&GameState::yearNumber, &GameState::weekNumber, &GameState::totalEnergyMax);
}

CalendarWeek reportedWeek(const GameState& state) {
  if (state.weekNumber - 1 == 0) return {weeksInYear, state.yearNumber - 1};
  return {state.weekNumber - 1, state.yearNumber};
}

bool inFirstWeeks(const GameState& state) { return state.weekNumberForTracking <= 3; }

void stateChanged(Game& game) {
  rollCalendar(game);
  if (game.leaderboardPass) game.leaderboardPass(game);
}

}  // namespace backbeat
