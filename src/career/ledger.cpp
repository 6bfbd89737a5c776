#include "career/ledger.h"

#include <utility>

namespace backbeat {

size_t entryPosition(const GameState& state, int64_t code) {
  return state.saveAllWeeklyLineItems.find([&](const WeeklyLineItem& item) { return item.typeOfExpense == code; });
}

void addExpense(GameState& state, std::string_view title, double dollars, int64_t code, int64_t energyBoost) {
  WeeklyLineItem item;
  item.title = std::string(title);
  item.amount = dollars;
  item.year = state.yearNumber;
  item.isExpense = true;
  item.typeOfExpense = code;
  item.energyBoost = energyBoost;
  state.saveAllWeeklyLineItems.append(std::move(item));
}

void removeEntry(GameState& state, int64_t code) {
  const size_t position = entryPosition(state, code);
  if (position != state.saveAllWeeklyLineItems.size()) state.saveAllWeeklyLineItems.erase(position);
}

void ensureBasicNeeds(Game& game) {
  if (entryPosition(game.state, expense::basicNeeds) != game.state.saveAllWeeklyLineItems.size()) return;
  addExpense(game.state, "Basic Needs", 50, expense::basicNeeds);
  game.save(&GameState::saveAllWeeklyLineItems);
}

bool isLivingExpense(const WeeklyLineItem& item) {
  return item.typeOfExpense < expense::firstInsurance || item.typeOfExpense == expense::basicNeeds;
}

double livingExpenses(const GameState& state) {
  double sum = 0;
  for (const WeeklyLineItem& item : state.saveAllWeeklyLineItems) {
    if (isLivingExpense(item)) sum += item.amount;
  }
  return sum;
}

}  // namespace backbeat
