// The one place where energy and cash are spent and earned.
#pragma once

#include "core/game.h"
#include "core/price.h"

namespace backbeat {

/// Whether the price can be paid. What asks for no dollars can be had in debt too.
bool affordable(const GameState& state, const Price& price);

/// The two halves, for rules that refuse each in words of its own. In debt there is not even the cash for what happens
/// to be free.
bool hasEnergy(const GameState& state, const Price& price);
bool hasCash(const GameState& state, const Price& price);

/// Takes the price and saves what it touched. Asks nothing: a rule that takes whatever there is sinks into debt.
void pay(Game& game, const Price& price);

/// Gives energy, over the ceiling too, and dollars.
void earn(Game& game, const Charge& gain);

}  // namespace backbeat
