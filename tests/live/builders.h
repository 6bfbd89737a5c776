// Tours and festivals for a test: sensible values; change what the test is about.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "core/game_state.h"

namespace backbeat {

/// A venue of a tour with so many shows to play: 2,500 seats of which so many find a buyer, at $150.
MusicTour venueOnTour(const std::string& stadium, int64_t shows, int64_t seatsSold);

/// The artist sets out with these venues, under the next tour id, for so much energy a week.
void putOnTour(GameState& state, std::vector<MusicTour> venues, int64_t energy);

/// A festival in so many weeks, or so many weeks ago when below 0.
Festival festivalIn(const GameState& state, int64_t weeks, const std::string& name);

/// It is booked, under the next id.
void book(GameState& state, Festival festival);

}  // namespace backbeat
