// What stands on the shelf: how much of it there is, ordering more, and taking it off.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "core/game.h"
#include "core/outcome.h"
#include "core/price.h"

namespace backbeat {

/// Position of a product by its id.
std::optional<size_t> productPosition(const GameState& state, int64_t merchId);

/// Lets what is retired sleep: no turn sells it and no shelf counts it. Called when a turn begins.
void letRetiredProductsSleep(GameState& state);

/// Products that are not retired; sold out ones count.
int64_t activeProducts(const GameState& state);
/// Units of them in the warehouse.
int64_t unitsStored(const GameState& state);

/// What was sold in a week, in dollars, the website's fee taken off.
double netSales(const GameState& state, CalendarWeek week);

/// Weeks to make so many units with the plan there is; from 20,000 on by whole ten thousands.
int64_t weeksToManufacture(const GameState& state, int64_t units);

/// Week ends until the first one that sells it, 0 when it is out. Counted from the launch, also for what was ordered
/// again, so that a new order of an old product is there at once: intended.
int64_t weeksUntilOnSale(const GameState& state, const Merch& product);

bool isSoldOut(const Merch& product);
/// Sold out, and no limited edition.
bool canRestock(const Merch& product);

/// How much there is, and what it waits for: "0 units for sale • Sold out (tap to reorder)".
std::string productStanding(const GameState& state, const Merch& product);

/// The energy is taken by the press, before the question; the dollars by the answer: intended.
Price restockCost(const Merch& product);
inline constexpr Price retireCost = {.energy = 50};

/// Takes the energy and asks; "Yes, Restock" sends `confirmed`. Nothing for a product that cannot be restocked.
Outcome askToRestock(Game& game, int64_t merchId, Action confirmed);
/// Orders the first run once more, without the setup fee and whatever fits the warehouse. Refused without the cash.
Outcome restockMerch(Game& game, int64_t merchId);

/// Takes the energy, draws what somebody offers for each unit that is left, and asks; "Yes, Retire" sends `confirmed`.
/// `offer` is set, in dollars a unit, when the question stands.
Outcome askToRetire(Game& game, int64_t merchId, Action confirmed, std::optional<double>& offer);
/// Sells what is left for `offer` a unit and takes the product off the shelf, with the energy it cost each week.
Outcome retireMerch(Game& game, int64_t merchId, double offer);

/// Whether the product stands on the artist's page on the streaming service.
Outcome showOnProfile(Game& game, int64_t merchId, bool shown);

}  // namespace backbeat
