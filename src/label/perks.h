// What the label spoils its staff with.
#pragma once

#include <array>
#include <string_view>

#include "core/game.h"

namespace backbeat {

struct OfficePerk {
  std::string_view title;
  int64_t GameState::*on;
  double cost;  ///< dollars a week for each employee
  double GameState::*boost;
  double amount;  ///< points a week for each employee

  constexpr bool givesEnergy() const { return boost == &GameState::labelEnergyBoost; }
};

inline constexpr std::array<OfficePerk, 10> officePerks = {{
    {"Barista Coffee", &GameState::officePerk1, 15, &GameState::labelEnergyBoost, 0.25},
    {"Snack Wall", &GameState::officePerk2, 30, &GameState::labelEnergyBoost, 0.5},
    {"Standing Desks and a Gym", &GameState::officePerk3, 75, &GameState::labelEnergyBoost, 1.0},
    {"Chef's Lunch", &GameState::officePerk4, 225, &GameState::labelEnergyBoost, 2.0},
    {"Four-Day Week", &GameState::officePerk5, 450, &GameState::labelEnergyBoost, 3.0},
    {"Game Room", &GameState::officePerk6, 50, &GameState::labelMoraleBoost, 0.25},
    {"Dogs at Work", &GameState::officePerk7, 100, &GameState::labelMoraleBoost, 0.5},
    {"Concert Tickets", &GameState::officePerk8, 250, &GameState::labelMoraleBoost, 0.75},
    {"Full Health Cover", &GameState::officePerk9, 625, &GameState::labelMoraleBoost, 1.0},
    {"Yearly Island Retreat", &GameState::officePerk10, 1'200, &GameState::labelMoraleBoost, 1.25},
}};

/// On or off; nothing is charged before the week ends.
void toggleOfficePerk(Game& game, const OfficePerk& perk);

}  // namespace backbeat
