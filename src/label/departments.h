// The five departments of the label: what each rates with its staff, and what its rating gives.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "core/game.h"

namespace backbeat {

inline constexpr size_t departmentCount = 5;

/// A department's code is its place in this table.
struct Department {
  std::string_view name;
  std::string_view shortName;
  std::string_view icon;
  /// The player's trait that counts twice among its staff; nullptr for Production, where the studio counts once.
  int64_t GameState::*trait;
};

namespace department {
inline constexpr int64_t artistsAndRepertoire = 0;
inline constexpr int64_t legal = 1;
inline constexpr int64_t production = 2;
inline constexpr int64_t publicity = 3;
inline constexpr int64_t sales = 4;
}  // namespace department

inline constexpr std::array<Department, departmentCount> departments = {{
    {"Artist & Repertoire", "A&R", "ear", &GameState::businessTrait4},
    {"Legal", "Legal", "gavel", &GameState::businessTrait3},
    {"Production", "Production", "equalizer", nullptr},
    {"Publicity & Promotions", "Publicity", "megaphone", &GameState::businessTrait2},
    {"Sales & Distribution", "Sales", "cash", &GameState::businessTrait5},
}};

/// Staff that nobody wears out: so many artists for each of them.
inline constexpr int64_t artistsForEach = 3;

struct DepartmentStanding {
  int64_t staff = 0;
  int64_t ratings = 0;       ///< of all its staff together
  int64_t rating = 0;        ///< the mean of its staff, 0 without any
  int64_t studioRating = 0;  ///< the same with the player's trait or studio among them, 0 without staff
};

struct LabelRatings {
  std::array<DepartmentStanding, departmentCount> departments;
  int64_t overall = 0;  ///< of the label: by what its departments come to with the player; the weakest counts twice
};

/// How the label stands now. An unstaffed department counts 0, whatever the player can do: intended.
LabelRatings departmentRatings(const GameState& state);

/// Artists under contract.
int64_t activeArtists(const GameState& state);

/// Whether each of the department's staff has more artists than they can handle.
bool isUnderstaffed(const GameState& state, const DepartmentStanding& standing);

/// Puts each staffed department's rating to work: its bonus is written and saved. An unstaffed one leaves its bonus as
/// it stands: intended, only the last to be let go takes it along. Runs when the label home opens and on each
/// `labelChanged`, and never else, so that a bonus lags behind the staff.
void refreshLabelRatings(Game& game);

/// A department that has just lost its last gives nothing more.
void clearBonus(GameState& state, int64_t code);

/// Posted by what changes the label: its ratings follow, and whatever screen shows them.
void labelChanged(Game& game);

}  // namespace backbeat
