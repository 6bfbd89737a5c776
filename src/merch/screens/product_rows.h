// How a product stands on a shelf.
#pragma once

#include "core/game_state.h"
#include "core/view.h"

namespace backbeat {

/// Picture, name, how much there is of it, and its price; opens the product.
Row productRow(const GameState& state, const Merch& product);

}  // namespace backbeat
