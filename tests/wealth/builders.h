// Homes and vehicles for a test, with their entries in the ledger, and parts of startups.
#pragma once

#include <cstdint>

#include "core/game_state.h"

namespace backbeat {

/// The home of that id, bought at an index in a year.
void ownHome(GameState& state, int64_t propertyId, double index, int64_t year);

/// The vehicle of that id, bought in a year; its bonus lifts the energy ceiling.
void ownVehicle(GameState& state, int64_t id, int64_t year);

/// A part of the startup of that id, whose rounds up to `round` are over, a week before the next one is due: a tenth of
/// its shares bought at first, and what later rounds left of that.
Venture stakeIn(const GameState& state, int64_t businessId, int64_t round);

}  // namespace backbeat
