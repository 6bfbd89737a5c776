// A shop for a test: plans and products with sensible values; change what the test is about.
#pragma once

#include <cstdint>
#include <string>

#include "core/game_state.h"

namespace backbeat {

/// Which plan of each service runs, 0 to 2.
struct ShopPlans {
  size_t website = 0;
  size_t manufacturing = 0;
  size_t logistics = 0;
};

/// Subscribes to all three.
void openShop(GameState& state, const ShopPlans& plans);

/// 10,000 T-shirts on sale since long ago for 24.99, made under the cheapest website.
Merch tShirt(const std::string& name);

/// Puts the product on the shelf under the next id, with its weekly energy when it is not retired. Its id.
int64_t stock(GameState& state, Merch product);

/// The row of what a product sold in a week, counted from the first.
void addSale(GameState& state, int64_t merchId, int64_t absoluteWeek, int64_t units);

}  // namespace backbeat
