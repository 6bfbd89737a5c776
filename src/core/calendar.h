// The calendar, and the signal that something a screen shows has changed.
#pragma once

#include "core/game.h"

namespace backbeat {

inline constexpr int64_t firstYear = 2023;  ///< in which every first artist begins

/// How many years of the own music Optimize leaves standing.
inline constexpr int64_t yearsOfOwnMusic = 20;

/// The year in which this generation began: the first one of all, or that of the takeover.
int64_t generationBegan(const GameState& state);

/// Turns week 53 into week 1 of the next year, when the artist ages: one point of energy ceiling goes, down to 25.
/// Frees the leaderboard pass in weeks 10, 20, ... Runs whenever the header is shown anew, not only at a week's end.
void rollCalendar(Game& game);

/// The week before the one that the calendar shows; week 1 reports week 52 of the year before.
CalendarWeek reportedWeek(const GameState& state);

/// Whether the artist is so new that advice helps: the first three weeks of a first life.
bool inFirstWeeks(const GameState& state);

/// Posted after any change that a visible screen has to show. A rule, not a redraw: it rolls the calendar, then runs
/// the leaderboard pass.
void stateChanged(Game& game);

}  // namespace backbeat
