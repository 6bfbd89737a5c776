// What people do with money that they do not need: homes and vehicles. As with the other habits (habits.h), a week that
// has no energy, no money or no occasion for one presses nothing.
#pragma once

#include "shell/simulate/player.h"

namespace backbeat {

/// What becomes of the cash, in shares of it.
struct WealthHabit {
  double shareForAHome = 0.6;
  double shareForAVehicle = 0.1;
};
/// Every quarter both of what follows.
void placeCash(Player& player, const WealthHabit& habit, int64_t week);

/// Buys the dearest home on the market that costs at most `budget` dollars.
void buyHome(Player& player, double budget);

/// Buys the cheapest vehicle that raises the energy ceiling, where it costs at most `budget` dollars.
void buyVehicle(Player& player, double budget);

}  // namespace backbeat
