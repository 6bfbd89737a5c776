#include "career/ledger.h"

namespace backbeat {

void ensureBasicNeeds(Game& game) {
  RecordList<WeeklyLineItem>& items = game.state.saveAllWeeklyLineItems;
  const auto isBasicNeeds = [](const WeeklyLineItem& item) { return item.typeOfExpense == expense::basicNeeds; };
  if (items.find(isBasicNeeds) != items.size()) return;
  WeeklyLineItem item;
  item.title = "Basic Needs";
  item.amount = 50;
  item.year = game.state.yearNumber;
  item.isExpense = true;
  item.typeOfExpense = expense::basicNeeds;
  items.append(std::move(item));
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
