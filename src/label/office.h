// Where the label works: its office, and the booths in which its artists record.
#pragma once

#include <array>
#include <string_view>

#include "core/game.h"
#include "core/outcome.h"
#include "core/price.h"

namespace backbeat {

struct Office {
  std::string_view typeOfOffice;  ///< its name, as it is kept
  std::string_view scene;
  int64_t capacity;  ///< employees
  double rent;       ///< dollars a week
  int64_t boothMax;  ///< booths of all kinds
};

inline constexpr std::array<Office, 5> offices = {{
    {"GARAGE", "garageOffice", 5, 0, 2},
    {"COWORKING SPACE", "coworking", 15, 1'000, 8},
    {"WAREHOUSE", "warehouse", 25, 2'500, 12},
    {"MODERN LOFT", "loft", 35, 5'000, 18},
    {"SPRAWLING CAMPUS", "campus", 50, 10'000, 25},
}};

struct Booth {
  std::string_view kind;  ///< as a press names it
  std::string_view title;
  std::string_view picture;
  std::string_view size;
  int64_t GameState::*owned;
  double buyPrice;   ///< dollars
  double salePrice;  ///< dollars
  int64_t capacity;  ///< artists it adds when it is bought, and takes when it is sold
  /// Artists it is counted with when one is to be sold: a diamond booth with one less than it adds, intended.
  int64_t counted;
  int64_t neededToSell;  ///< by how much that count has to exceed the artists under contract

  constexpr Price price() const { return {.dollars = buyPrice}; }
};

inline constexpr std::array<Booth, 3> booths = {{
    {"gold", "Gold Booth", "goldBooth", "4x4 sqft", &GameState::goldBooth, 5'000, 2'500, 1, 1, 1},
    {"platinum", "Platinum Booth", "platinumBooth", "8x8 sqft", &GameState::platinumBooth, 9'500, 4'750, 2, 2, 2},
    {"diamond", "Diamond Booth", "diamondBooth", "16x16 sqft", &GameState::diamondBooth, 18'000, 9'000, 4, 3, 4},
}};

/// The booth of that kind, or nullptr.
const Booth* boothNamed(std::string_view kind);

/// Booths of all kinds.
int64_t boothCount(const GameState& state);

/// Perks and rent, in dollars a week.
double officeCosts(const GameState& state);

/// Moves, free and at once, also to where the label is already. Refused where staff or booths do not fit in; artists
/// are not asked: intended.
Outcome setOffice(Game& game, const Office& office);

/// Refused without the cash, then without the room.
Outcome buyBooth(Game& game, const Booth& booth);

/// Half of the price comes back, also off the label's cost. Refused without such a booth, and while the artists under
/// contract need it.
Outcome sellBooth(Game& game, const Booth& booth);

}  // namespace backbeat
