#include "career/lifestyle.h"

#include "core/calendar.h"
#include "core/money.h"

namespace backbeat {

namespace {

size_t entryPosition(const GameState& state, const LifestyleCategory& category) {
  return state.saveAllWeeklyLineItems.find(
      [&](const WeeklyLineItem& item) { return item.typeOfExpense == category.typeOfExpense; });
}

/// Takes the running entry out of the ledger, with what it gave. False when there is none.
bool removeEntry(GameState& state, const LifestyleCategory& category) {
  const size_t position = entryPosition(state, category);
  if (position == state.saveAllWeeklyLineItems.size()) return false;
  if (category.givesVirality()) {
    state.fashionViralityBonus = 0;
  } else {
    state.totalEnergyMax -= state.saveAllWeeklyLineItems[position].energyBoost;
  }
  state.saveAllWeeklyLineItems.erase(position);
  return true;
}

Outcome refuse(const LifestyleOption& option) {
  return alert(std::string(option.title), "Selecting this option requires an initial payment of " +
                                              currency(option.cost) + " which you do not currently have.");
}

Outcome noExpenseFound() { return alert("No Expense Found", "\nYou don't have a weekly expense in this category."); }

Outcome question(std::string title, std::string message, AlertButton yes) {
  Outcome outcome;
  outcome.alerts.push_back(
      {std::move(title), std::move(message), {{"Cancel", {}, AlertButton::Style::cancel}, std::move(yes)}});
  return outcome;
}

}  // namespace

std::optional<WeeklyLineItem> lifestyleEntry(const GameState& state, const LifestyleCategory& category) {
  const size_t position = entryPosition(state, category);
  if (position == state.saveAllWeeklyLineItems.size()) return std::nullopt;
  return state.saveAllWeeklyLineItems[position];
}

Outcome askForLifestyle(const GameState& state, const LifestyleOption& option, bool givesVirality, Action confirmed) {
  if (state.totalCashAvailable < option.cost) return refuse(option);
  const std::string cost = currency(option.cost);
  return question(std::string(option.title),
                  "DUE NOW: " + cost + "\n\nSelecting this option will increase your weekly expenses by " + cost +
                      (givesVirality ? " and your VIRALITY by +" : " and your MAX ENERGY by +") +
                      std::to_string(option.energyBoost),
                  {"Confirm", std::move(confirmed), AlertButton::Style::normal});
}

Outcome chooseLifestyle(Game& game, const LifestyleCategory& category, const LifestyleOption& option) {
  GameState& state = game.state;
  if (state.totalCashAvailable < option.cost) return refuse(option);
  removeEntry(state, category);
  if (category.givesVirality()) {
    state.fashionViralityBonus = option.energyBoost;
  } else {
    state.totalEnergyMax += option.energyBoost;
  }
  WeeklyLineItem entry;
  entry.title = option.title;
  entry.amount = option.cost;
  entry.year = state.yearNumber;
  entry.isExpense = true;
  entry.typeOfExpense = category.typeOfExpense;
  entry.energyBoost = option.energyBoost;
  state.saveAllWeeklyLineItems.append(std::move(entry));
  state.totalCashAvailable -= option.cost;
  game.save(&GameState::saveAllWeeklyLineItems, &GameState::totalEnergyMax, &GameState::totalCashAvailable,
            &GameState::fashionViralityBonus);
  stateChanged(game);
  return success();
}

Outcome askToClearLifestyle(const GameState& state, const LifestyleCategory& category, Action confirmed) {
  const auto entry = lifestyleEntry(state, category);
  if (!entry) return noExpenseFound();
  return question("Remove " + entry->title + " Expense?", "\nWould you like to clear this expense?",
                  {"Remove", std::move(confirmed), AlertButton::Style::destructive});
}

Outcome clearLifestyleExpense(Game& game, const LifestyleCategory& category) {
  if (!removeEntry(game.state, category)) return noExpenseFound();
  game.save(&GameState::saveAllWeeklyLineItems, &GameState::totalEnergyMax, &GameState::fashionViralityBonus);
  stateChanged(game);
  return success();
}

}  // namespace backbeat
