// What the market and the portfolio say alike of a home.
#pragma once

#include <string>
#include <vector>

#include "core/game_state.h"
#include "core/view.h"
#include "wealth/property_catalogue.h"

namespace backbeat {

/// The size of a home; of land only its acres.
std::vector<Fact> factsOf(const Property& property);
std::vector<Fact> factsOf(const InvestmentProperty& home);

/// "up 7.2%", "down 0.4%", "unchanged", for a difference of indexes.
std::string changeText(double change);

/// Today's market: the index, and how far it is from where all markets begin.
Tile marketTile(double index);

}  // namespace backbeat
