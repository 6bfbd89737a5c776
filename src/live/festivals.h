// Festivals played: which one a week has, and what was written about it.
#pragma once

#include <cstdint>
#include <string>

#include "core/game.h"
#include "core/week_rows.h"

namespace backbeat {

/// Position of the first festival played in that week, or the list's size. A second one of the same week counts for
/// nothing: intended.
size_t festivalOfWeek(const GameState& state, CalendarWeek week);

/// The papers write about the week's festival: its stars follow from the songs that were played, its line is drawn.
/// Without a festival nothing happens.
void reviewFestival(Game& game, CalendarWeek week);

inline bool reviewed(const Festival& festival) { return !festival.topReview.empty(); }

/// Stars of a review by its score: one to five.
int64_t festivalStars(double reviewStars);

/// "★★★"
std::string starText(const Festival& festival);

/// "July 19", the day on which a week of a year begins.
std::string dayOfWeek(CalendarWeek week);

}  // namespace backbeat
