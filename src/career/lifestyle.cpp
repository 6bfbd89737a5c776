#include "career/lifestyle.h"

#include "career/ledger.h"
#include "core/calendar.h"
#include "core/money.h"
#include "core/purse.h"

namespace backbeat {

namespace {

/// Takes the running entry out of the ledger, with what it gave. False when there is none.
bool removeEntry(GameState& state, const LifestyleCategory& category) {
  const size_t position = entryPosition(state, category.typeOfExpense);
  if (position == state.saveAllWeeklyLineItems.size()) return false;
  if (category.givesVirality()) {
    state.fashionViralityBonus = 0;
  } else {
    state.totalEnergyMax -= state.saveAllWeeklyLineItems[position].energyBoost;
  }
  state.saveAllWeeklyLineItems.erase(position);
  return true;
}

AlertTitle titleOf(const LifestyleOption& option) { return alertTitle<"*", "lifestyle">.with(option.title); }

Outcome tooDear(const LifestyleOption& option) {
  return noCash(titleOf(option), "Selecting this option requires an initial payment of " + currency(option.cost) +
                                     " which you do not currently have.");
}

Outcome noExpenseFound() { return refuse<"No Expense Found">("\nYou don't have a weekly expense in this category."); }

}  // namespace

std::optional<WeeklyLineItem> lifestyleEntry(const GameState& state, const LifestyleCategory& category) {
  const size_t position = entryPosition(state, category.typeOfExpense);
  if (position == state.saveAllWeeklyLineItems.size()) return std::nullopt;
  return state.saveAllWeeklyLineItems[position];
}

Outcome askForLifestyle(const GameState& state, const LifestyleOption& option, bool givesVirality, Action confirmed) {
  if (!hasCash(state, option.firstPayment())) return tooDear(option);
  const std::string cost = currency(option.cost);
  return ask(titleOf(option),
             "DUE NOW: " + cost + "\n\nSelecting this option will increase your weekly expenses by " + cost +
                 (givesVirality ? " and your VIRALITY by +" : " and your MAX ENERGY by +") +
                 std::to_string(option.energyBoost),
             "Cancel", {"Confirm", std::move(confirmed), AlertButton::Style::normal});
}

Outcome chooseLifestyle(Game& game, const LifestyleCategory& category, const LifestyleOption& option) {
  GameState& state = game.state;
  if (!hasCash(state, option.firstPayment())) return tooDear(option);
  removeEntry(state, category);
  if (category.givesVirality()) {
    state.fashionViralityBonus = option.energyBoost;
  } else {
    state.totalEnergyMax += option.energyBoost;
  }
  addExpense(state, option.title, option.cost, category.typeOfExpense, option.energyBoost);
  pay(game, option.firstPayment());
  game.save(&GameState::saveAllWeeklyLineItems, &GameState::totalEnergyMax, &GameState::fashionViralityBonus);
  stateChanged(game);
  return success();
}

Outcome askToClearLifestyle(const GameState& state, const LifestyleCategory& category, Action confirmed) {
  const auto entry = lifestyleEntry(state, category);
  if (!entry) return noExpenseFound();
  return ask(alertTitle<"Remove * Expense?">.with(entry->title), "\nWould you like to clear this expense?", "Cancel",
             {"Remove", std::move(confirmed), AlertButton::Style::destructive});
}

Outcome clearLifestyleExpense(Game& game, const LifestyleCategory& category) {
  if (!removeEntry(game.state, category)) return noExpenseFound();
  game.save(&GameState::saveAllWeeklyLineItems, &GameState::totalEnergyMax, &GameState::fashionViralityBonus);
  stateChanged(game);
  return success();
}

}  // namespace backbeat
