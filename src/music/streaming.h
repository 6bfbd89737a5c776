// What every released song streams each week, what that earns, and how its marketing and virality move.
#pragma once

#include "core/game.h"

namespace backbeat {

/// The audience that a marketing score reaches, by the whole part of the score. Over 250 it falls back to the bottom of
/// the table: fame bought, not earned.
int64_t marketingReachFor(int64_t marketingScore);

/// Dollars of a week's streams, kept to a tenth of a cent, halves away from zero.
double streamRevenue(double streams, double payRate, double shareKept);

/// The weeks a song still lives: its rating less its age. It streams while this is above 0, then is silent for ever.
double remainingLife(const GameState& state, const Song& song);

/// Step 2 of the turn. Sorts the songs by virality, and lets each released one stream: in its launch phase (marketing
/// above 0) by audience, marketing and virality; in its residual phase (marketing 0) a random part of the last recorded
/// week. Expects the marketing pool to have been opened by the album sales.
void simulateWeeklySongStreams(Game& game);

}  // namespace backbeat
