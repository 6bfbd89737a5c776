// How a song stands in a list.
#pragma once

#include <vector>

#include "core/game_state.h"
#include "core/view.h"

namespace backbeat {

/// A song in a list of the player's own: cover, title, what it is on, streams so far and in its last week. A press of
/// "song:<id>" opens it.
Row songRow(const GameState& state, const Song& song);

/// Positions of the songs that are out.
std::vector<size_t> releasedSongs(const GameState& state);

/// Positions of the songs that are out and have the most streams, `count` (at least 1) at most, the greatest first; of
/// equal ones the first in the list.
std::vector<size_t> mostHeard(const GameState& state, size_t count);

/// The streams of the song's latest recorded week, 0 when there is none.
int64_t latestWeeklyStreams(const GameState& state, const Song& song);

/// "12 weeks left", or that it has gone silent: how long a released song with so much life still streams.
std::string lifeLeft(double life);
std::string lifeLeft(const GameState& state, const Song& song);

}  // namespace backbeat
