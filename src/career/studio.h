// The artist's own studio: five parts, each bought level by level.
#pragma once

#include <array>
#include <string_view>

#include "core/game.h"
#include "core/outcome.h"
#include "core/price.h"

namespace backbeat {

struct StudioPart {
  std::string_view key;  ///< as a press names it
  std::string_view title;
  std::string_view icon;
  int64_t GameState::*level;  ///< 1 to 20
  double basePrice = 0;       ///< dollars; each level costs the level so far times this
};

inline constexpr std::array<StudioPart, 5> studioParts = {{
    {"studioAcoustic", "Acoustics", "studio", &GameState::studioAcoustic, 1'500},
    {"studioConsole", "Console", "keyboard", &GameState::studioConsole, 25'000},
    {"studioComputer", "Computer", "computer", &GameState::studioComputer, 250},
    {"studioBooth", "Booth", "booth", &GameState::studioBooth, 3'500},
    {"studioMonitors", "Monitors", "speaker", &GameState::studioMonitors, 6'750},
}};

inline constexpr int64_t highestStudioLevel = 20;

/// The part of that key, or nullptr.
const StudioPart* studioPartNamed(std::string_view key);

/// What the next level costs.
Price upgradeCost(const GameState& state, const StudioPart& part);

/// The levels of the five parts together: the rating of what is recorded here.
int64_t studioRating(const GameState& state);

/// The most, in dollars, that a day's rent of a studio of that rating brings.
int64_t studioRentalCeiling(int64_t rating);

/// Buys the next level. Without the money, and for a part at its highest level too, the answer is that the money does
/// not reach.
Outcome upgradeStudio(Game& game, const StudioPart& part);

}  // namespace backbeat
