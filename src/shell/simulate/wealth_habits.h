// What people do with money that they do not need: homes and vehicles. As with the other habits (habits.h), a week that
// has no energy, no money or no occasion for one presses nothing.
#pragma once

#include "shell/simulate/player.h"

namespace backbeat {

/// Buys the dearest home on the market that costs at most `budget` dollars.
void buyHome(Player& player, double budget);

/// Buys the cheapest vehicle that raises the energy ceiling, where it costs at most `budget` dollars.
void buyVehicle(Player& player, double budget);

}  // namespace backbeat
