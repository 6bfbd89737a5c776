// Homes and vehicles for a test, with their entries in the ledger.
#pragma once

#include <cstdint>

#include "core/game_state.h"

namespace backbeat {

/// The home of that id, bought at an index in a year.
void ownHome(GameState& state, int64_t propertyId, double index, int64_t year);

/// The vehicle of that id, bought in a year; its bonus lifts the energy ceiling.
void ownVehicle(GameState& state, int64_t id, int64_t year);

}  // namespace backbeat
