// What it costs to be talked about: five plans for a song or an album in production.
#pragma once

#include <array>
#include <cstdint>

#include "core/game.h"
#include "core/outcome.h"
#include "core/price.h"

namespace backbeat {

struct MarketingPlan {
  Price cost;
  int64_t leastScore = 0;
  int64_t greatestScore = 0;
};

inline constexpr std::array<MarketingPlan, 5> marketingPlans = {{
    {{.dollars = 500}, 1, 10},
    {{.dollars = 4'500}, 10, 25},
    {{.dollars = 35'000}, 25, 40},
    {{.dollars = 175'000}, 40, 80},
    {{.dollars = 875'000}, 80, 135},
}};

/// The most that a plan can bring a song, and an album beside its songs.
inline constexpr int64_t mostMarketing = marketingPlans.back().greatestScore;
inline constexpr int64_t albumMarketingBonus = 5;

/// What is marketed.
struct MarketingTarget {
  enum class Kind { song, album } kind = Kind::song;
  int64_t id = 0;
};

/// A plan with its luck. Before one is picked it costs nothing and brings nothing.
struct SelectedPlan {
  Price cost;
  int64_t score = 0;
};

/// Draws what the plan of that tier, 0 to 4, brings. Each press draws anew, for free, and the score is not told.
SelectedPlan selectMarketingPlan(Random& random, size_t tier);

/// Pays the plan. A song's marketing becomes the score; an album's becomes score + `songCount` + 5, and that of every
/// song on it, released or not, the score. What was there before is replaced. Refused without the money; with no plan
/// picked it saves and closes all the same, and changes nothing.
Outcome applyMarketingPlan(Game& game, const MarketingTarget& target, const SelectedPlan& plan);

}  // namespace backbeat
