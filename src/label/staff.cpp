#include "label/staff.h"

#include <algorithm>

#include "career/ledger.h"
#include "core/calendar.h"
#include "core/money.h"
#include "core/purse.h"
#include "label/departments.h"
#include "label/hiring.h"

namespace backbeat {

namespace {

constexpr int64_t weeksOfSeverance = 8;

/// Position of the employee, or the size of the list.
size_t positionOf(const GameState& state, int64_t employeeId) {
  return state.saveAllEmployeeList.find([&](const Employee& employee) { return employee.employeeId == employeeId; });
}

int64_t staffOf(const GameState& state, int64_t code) {
  const RecordList<Employee>& staff = state.saveAllEmployeeList;
  return std::count_if(staff.begin(), staff.end(),
                       [&](const Employee& each) { return each.employeeDepartmentCode == code; });
}

bool isIndispensable(const GameState& state, const Employee& employee) {
  return activeArtists(state) > 0 && staffOf(state, employee.employeeDepartmentCode) == 1;
}

Outcome roleNeeded() {
  return refuse<"🗂 Role Needed 🗂">(
      "\nYou cannot fire this employee yet.\n\nYou can't have this department empty while you have artists under "
      "management. Hire another employee for this department first.");
}

}  // namespace

Price severance(const Employee& employee) {
  return {.dollars = static_cast<double>(weeklyPay(employee.employeeSalary) * weeksOfSeverance)};
}

Price motivationCost(const GameState& state) { return {.energy = (50 - state.businessTrait1) / 5 + 5}; }

Outcome askToFire(const GameState& state, int64_t employeeId, Action confirmed) {
  const size_t position = positionOf(state, employeeId);
  if (position == state.saveAllEmployeeList.size()) return {};
  const Employee& employee = state.saveAllEmployeeList[position];
  if (isIndispensable(state, employee)) return roleNeeded();
  return ask<"🗂 Fire Employee? 🗂">("Firing an employee requires 8 weeks of severence pay.\n\nSEVERENCE\n" +
                                             currency(severance(employee).dollars) +
                                             "\n\nAre you sure you want to fire this employee?",
                                         "No", {"Yes, Fire", std::move(confirmed), AlertButton::Style::destructive});
}

Outcome fireEmployee(Game& game, int64_t employeeId) {
  GameState& state = game.state;
  const size_t position = positionOf(state, employeeId);
  if (position == state.saveAllEmployeeList.size()) return {};
  const Employee employee = state.saveAllEmployeeList[position];
  if (isIndispensable(state, employee)) return roleNeeded();
  if (!hasCash(state, severance(employee))) {
    return noCash<"🗂 Not Enough Cash 🗂">("\nYou do not have enough cash to pay this employee severence.");
  }
  state.saveAllEmployeeList.erase(position);
  pay(game, severance(employee));
  removeEntry(state, employeeId);
  if (staffOf(state, employee.employeeDepartmentCode) == 0) clearBonus(state, employee.employeeDepartmentCode);
  game.save(&GameState::saveAllEmployeeList, &GameState::saveAllWeeklyLineItems);
  labelChanged(game);  // saves the bonuses, too
  return success();
}

Outcome motivateEmployee(Game& game, int64_t employeeId) {
  GameState& state = game.state;
  const size_t position = positionOf(state, employeeId);
  if (position == state.saveAllEmployeeList.size()) return {};
  const Price cost = motivationCost(state);
  if (!hasEnergy(state, cost)) return noEnergy("\nYou do not have enough energy to motivate this employee.");
  pay(game, cost);
  state.saveAllEmployeeList.update(position, [&](Employee& employee) {
    employee.employeeEnergy += state.labelEnergyBoost;
    employee.employeeMorale += state.labelMoraleBoost;
  });
  game.save(&GameState::saveAllEmployeeList);
  stateChanged(game);
  return success();
}

}  // namespace backbeat
