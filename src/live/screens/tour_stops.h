// How the shows of a tour stand on its route.
#pragma once

#include "core/game_state.h"
#include "core/view.h"

namespace backbeat {

Row playedStop(const WeeklyTourSales& show);

/// `week` is the week of the year in which its shows begin.
Row comingStop(const MusicTour& venue, int64_t week, bool isNext);

/// The weeks of the year in which the venues to come begin, from the present one on, and the week after the last.
std::vector<int64_t> weeksToCome(const GameState& state);

/// Adds the next shows of a tour under way, as the artist's page on the streaming service tells them.
void addTourDates(View& view, const GameState& state);

}  // namespace backbeat
