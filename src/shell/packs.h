// Packs of energy and cash from the device's shop: what each holds, and how a purchase comes into the career once,
// whatever happens on the way.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "core/game.h"
#include "core/outcome.h"
#include "core/price.h"

namespace backbeat {

struct Pack {
  std::string_view product;  ///< by which every shop knows it; never changes
  std::string_view title;
  Charge gift;                  ///< what comes into the purse
  int64_t permanentEnergy = 0;  ///< by how much the week's energy rises for good
};

inline constexpr std::array<Pack, 7> packs = {{
    {"energy25", "25 Energy", {.energy = 25}},
    {"energy60", "60 Energy", {.energy = 60}},
    {"energy150", "150 Energy", {.energy = 150}},
    {"cash5000", "$5,000", {.dollars = 5'000}},
    {"cash50000", "$50,000", {.dollars = 50'000}},
    {"cash500000", "$500,000", {.dollars = 500'000}},
    {"permanentEnergy5", "+5 Energy a Week", {.energy = 5}, 5},
}};

/// nullptr when this version knows no such product.
const Pack* packNamed(std::string_view product);

/// A free pack can be had once a game week. Whether this one was.
bool takenThisWeek(const GameState& state, std::string_view product);

/// Whether the shop was asked for it in this launch and has not answered yet.
bool isAwaited(const Game& game, std::string_view product);

/// Asks the shop for a pack. Refused while it is awaited, and for a free one that was taken this week; for what is not
/// offered nothing happens. The career stays as it is until the shop answers.
Outcome buyPack(Game& game, std::string_view product);

/// Whether the purchase has had its effect.
bool isCredited(const GameState& state, std::string_view transaction);

/// What the shop answers. What was bought comes into the career and marks it, once for each transaction. A free pack
/// beyond the week's measure brings nothing, and a product that this version does not know waits for one that does.
Outcome takePurchase(Game& game, const PurchaseAnswer& answer);

}  // namespace backbeat
