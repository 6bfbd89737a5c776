// The money of the world in which no two figures are equal.
#pragma once

#include "career/ledger.h"
#include "music/figures.h"

namespace backbeat {

/// A standing weekly entry of the ledger.
struct Entry {
  const char* title;
  int64_t code;
  bool isExpense = true;
};

inline constexpr Entry entries[] = {
    {"House Chef", expense::food},
    {"Stylist", expense::fashion},
    {"Basic Needs", expense::basicNeeds},
    {"Insurance of the boat", expense::firstInsurance + 3},
    {"Tax of the villa", expense::firstProperty + 4},
    {"Pay of the manager", expense::firstStaff + 5},
    {"Label campaign", expense::lastStaff + 6},
    {"Web shop", expense::firstMerch + 7},
    {"Rent of the flat", 30'000, false},
};

/// What the records of the week before `weekNumber` brought.
template <class T>
double earned(const RecordList<T>& list, const GameState& state, double T::*amount) {
  double sum = 0;
  for (const T& row : list) {
    if (row.weekNumber == state.weekNumber - 1 && row.yearNumber == state.yearNumber) sum += row.*amount;
  }
  return sum;
}

/// The amount of the entry of that title.
double entry(const GameState& state, std::string_view title);
/// What daily life costs a week.
double livingCosts(const GameState& state);
/// Job, family, ledger, and perks and rent of the label, together.
double standingNet(const GameState& state);

/// Of the week before `weekNumber`: merchandise less its fees, and what the label's artists brought with its bonus.
double merchOf(const GameState& state);
double labelAlbums(const GameState& state);
double labelStreams(const GameState& state);

}  // namespace backbeat
