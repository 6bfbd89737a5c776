// The ledger of standing weekly entries, and what their codes mean.
#pragma once

#include <string_view>

#include "core/game.h"

namespace backbeat {

/// `typeOfExpense` both classifies and identifies an entry.
namespace expense {
inline constexpr int64_t food = 0;
inline constexpr int64_t fashion = 1;  ///< its `energyBoost` holds virality
inline constexpr int64_t health = 2;
inline constexpr int64_t home = 3;
inline constexpr int64_t transportation = 4;
inline constexpr int64_t lastChoice = 999;       ///< the codes kept for choices of this kind
inline constexpr int64_t firstInsurance = 5000;  ///< a vehicle's insurance: its id less 2000
inline constexpr int64_t lastInsurance = 5999;
inline constexpr int64_t basicNeeds = 6969;
inline constexpr int64_t firstProperty = 7000;  ///< a property's tax: its id plus 2000
inline constexpr int64_t lastProperty = 7999;
inline constexpr int64_t firstStaff = 10'000;  ///< salaries
inline constexpr int64_t lastStaff = 11'999;
inline constexpr int64_t lastLabelCost = 24'999;  ///< up to here entries count into the label's total cost
inline constexpr int64_t firstMerch = 25'000;     ///< website, manufacturing and logistics plans
}  // namespace expense

/// Position of the first entry with that code, or the size of the ledger.
size_t entryPosition(const GameState& state, int64_t code);

/// Puts an expense of so many dollars a week at the end of the ledger. The caller saves, here and below.
void addExpense(GameState& state, std::string_view title, double dollars, int64_t code, int64_t energyBoost = 0);

/// Takes the first entry with that code out. Without one nothing happens.
void removeEntry(GameState& state, int64_t code);

/// Makes sure that the ledger holds "Basic Needs", $50 a week; does nothing when it does.
void ensureBasicNeeds(Game& game);

/// Whether the entry belongs to the cost of daily life: anything below the insurances, and the basic needs.
bool isLivingExpense(const WeeklyLineItem& item);

/// What daily life costs a week, in dollars.
double livingExpenses(const GameState& state);

}  // namespace backbeat
