// Verses for others, for a test: sensible values; change what the test is about.
#pragma once

#include <cstdint>
#include <string>

#include "core/game_state.h"

namespace backbeat {

/// A song of somebody else that came out in the week at which the state stands, and was not heard yet.
FeaturedOn newVerse(const GameState& state, int64_t songId, const std::string& title);

/// Adds it as the career's latest, with so many weeks up to now of so many streams each.
void addVerse(GameState& state, FeaturedOn verse, int64_t weeks = 0, int64_t streamsEach = 0);

/// Somebody under contract with the player's label, who keeps so much of what a song earns.
SignedArtist artistOfTheLabel(int64_t artistId, const std::string& name, double labelRevenuePercentage);

}  // namespace backbeat
