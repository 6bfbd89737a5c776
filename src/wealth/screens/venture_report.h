// What a week's report says of the startups of the portfolio.
#pragma once

#include "core/game.h"
#include "core/view.h"

namespace backbeat {

/// A row for each startup whose valuation moved or that has ended this week, in the order in which that came about.
Rows startupsOfWeek(const Game& game);

}  // namespace backbeat
