// What a couple can become: engaged, married, parents. One button leads through all of it.
#pragma once

#include <array>
#include <string_view>

#include "core/game.h"
#include "core/outcome.h"
#include "core/price.h"

namespace backbeat {

inline constexpr Price weddingCost = {.dollars = 25'000};
inline constexpr Price babyCost = {.energy = 25};
inline constexpr int64_t weeksOfPregnancy = 37;

/// A ring is nothing but a ring: the answer is the same for each, on purpose.
struct Ring {
  std::string_view name;
  double dollars;
  std::string_view cut;
  std::string_view imageString;
  std::string_view form;
  constexpr Price price() const { return {.dollars = dollars}; }
};
inline constexpr std::array<Ring, 7> rings = {{
    {"Ring 1", 2'500, " • Pear Brilliant", "ring1.png", "pearRing"},
    {"Ring 2", 5'000, " • Step Cut", "ring2.png", "stepRing"},
    {"Ring 3", 10'000, " • Heart Cut", "ring3.png", "heartRing"},
    {"Ring 4", 25'000, " • Round Brilliant", "ring4.png", "roundRing"},
    {"Ring 5", 75'000, " • Trilliant Cut (1 Carat)", "ring5.png", "trilliantRing"},
    {"Ring 6", 1'200'000, " • Round Brilliant (14 Carat)", "ring6.png", "grandRing"},
    {"Ring 7", 10'000'000, " • Round Brilliant (35 Carat)", "ring7.png", "royalRing"},
}};

/// Weeks together that have to be exceeded for the next step; 0 once married.
int64_t weeksToNextStep(const Matches& partner);

/// Whether nothing but the artist holds up a proposal or a wedding.
bool mayTakeNextStep(const GameState& state, const Matches& partner);

/// The next step of the two: choosing a ring, the question before the wedding, or a try for a baby. Each is refused
/// too early, with too little love, and without what it costs; during a pregnancy it does nothing.
Outcome mainAction(Game& game);

/// Whether there is somebody to propose to and nothing but the ring's price in the way.
bool canPropose(const GameState& state);

/// Proposes with the ring at `number` of the table. Refused as the step is, and without the cash.
Outcome propose(Game& game, size_t number);

/// Marries. Refused as the step is. Without a prenup the partner's assets come in with the wedding.
Outcome wed(Game& game, bool withPrenup);

/// Dollars that the partner brings into a marriage.
double partnersAssets(const GameState& state, const Matches& partner);

/// Whether the two of a marriage are too old for a child of their own.
bool fertilityBlocked(const GameState& state);

}  // namespace backbeat
