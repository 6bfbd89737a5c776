// What artists do beside their records: films, tours, a shop. As with the other habits (habits.h), a week that has no
// energy, no money or no occasion for one presses nothing, or takes the refusal.
#pragma once

#include "shell/simulate/player.h"

namespace backbeat {

/// Films the best song that has no video yet, by the best director and in the liveliest style that `budget` dollars
/// pay. What is left promotes it, unless a label does that.
void filmBestSong(Player& player, double budget);

struct TourHabit {
  double shareOfEnergy = 0.3;  ///< of a week, that the road may take
  double leastGain = 0;        ///< dollars that the planner has to show, or nobody goes
};
/// With a label and rested: plays the venues that leave most for their energy.
void goOnTour(Player& player, const TourHabit& habit);

struct ShopHabit {
  int64_t products = 1;  ///< at most so many on the shelf
  double budget = 0;     ///< dollars for one order
};
/// With listeners enough to live from it: keeps a shop on the cheapest plans, orders again what is sold out, and puts
/// another product on the shelf, as dear as it gets.
void runShop(Player& player, const ShopHabit& habit);

}  // namespace backbeat
