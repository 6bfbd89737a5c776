// A label for a test: sensible values; change what the test is about.
#pragma once

#include <cstdint>
#include <string>

#include "core/game_state.h"

namespace backbeat {

/// The label "Kite House" stands, in its garage and with nobody in it.
void foundLabel(GameState& state);

/// Somebody starts in the department, well rested, with the next id and a salary in the ledger. Their id.
int64_t addEmployee(GameState& state, int64_t department, int64_t rating);

/// An artist signs for two years, all traits at `level`. Their id.
int64_t addSignedArtist(GameState& state, const std::string& name, int64_t level);

/// An album of the artist comes out this week, with so many songs of that rating; it has marketing and virality to
/// begin with, all of it 20. Its id.
int64_t addSignedAlbum(GameState& state, int64_t artistId, int64_t songs, double rating);

/// What the songs of an album streamed and the album sold in a week, or in so many up to the last one.
void addSignedWeek(GameState& state, int64_t albumId, int64_t weeksAgo, int64_t streams);
void addSignedWeeks(GameState& state, int64_t albumId, int64_t weeks, int64_t streams);

}  // namespace backbeat
