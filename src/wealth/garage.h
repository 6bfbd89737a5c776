// Vehicles, boats and aircraft: buying them, what they cost each week, selling them.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "core/game.h"
#include "core/outcome.h"
#include "core/price.h"
#include "core/view.h"
#include "wealth/vehicle_catalogue.h"

namespace backbeat {

/// Position of the vehicle in `saveAllTransportationOwnedList`; nothing when it is not owned.
std::optional<size_t> vehiclePosition(const GameState& state, int64_t id);

/// The code of the ledger under which a vehicle's insurance stands.
int64_t insuranceCode(int64_t id);

/// Points of energy ceiling that all vehicles give together.
int64_t garageEnergy(const GameState& state);

inline Price costOf(const TransportationOption& option) { return {.dollars = option.salePrice}; }
/// What a sale costs: nothing, but for a vehicle so old that its value is a debt.
std::optional<Price> costOfSale(const GameState& state, const Transportation& vehicle);

/// Asks before a vehicle is bought, with its insurance; the answer sends `confirmed`. Refused without the cash. Nothing
/// for one already owned; the same for the purchase itself.
Outcome askToBuyVehicle(const GameState& state, const TransportationOption& option, Action confirmed);
/// Buys it: its insurance joins the ledger, its bonus the energy ceiling. What drives on roads takes the place of the
/// lifestyle's transportation, which ends with what it gave.
Outcome buyVehicle(Game& game, const TransportationOption& option);

/// Asks before a vehicle is sold. Nothing when it is not owned; the same for the sale itself.
Outcome askToSellVehicle(const GameState& state, int64_t id, Action confirmed);
/// Sells it at what it is worth by its age, which can be a debt that is charged, and ends insurance and bonus.
Outcome sellVehicle(Game& game, int64_t id);

/// A vehicle's picture by its id; a sedan of its name's own for one that no table knows.
Picture vehiclePicture(int64_t id, const std::string& title);

}  // namespace backbeat
