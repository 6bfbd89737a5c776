#include "label/weekly_label_updates.h"

#include <algorithm>
#include <map>

#include "label/departments.h"
#include "label/staff.h"

namespace backbeat {

namespace {

constexpr double tiredBelow = 50;
constexpr double freshAbove = 80;
constexpr int64_t luckyDraw = 5;

/// How many times what one person can do falls to each of them.
double loadOf(int64_t artists, int64_t staff) {
  if (artists == 0 || staff * artistsForEach >= artists) return 1.0;
  return static_cast<double>(artists) / static_cast<double>(staff * artistsForEach);
}

/// One week of one employee. What tiredness and freshness do to the happiness may take it past its bounds until the
/// next week: intended.
void age(Employee& employee, double load, const GameState& state, Random& random) {
  const double burn = load * static_cast<double>(employee.employeeBurnRate);
  employee.employeeEnergy = std::clamp(employee.employeeEnergy - burn + state.labelEnergyBoost, 0.0, 100.0);
  employee.employeeMorale = std::clamp(employee.employeeMorale - burn * 0.5 + state.labelMoraleBoost, 0.0, 100.0);
  if (employee.employeeEnergy < tiredBelow) employee.employeeMorale -= 1.0;
  if (employee.employeeEnergy > freshAbove) employee.employeeMorale += 1.0;
  if (employee.employeeMorale < unhappyBelow && random.integer(0, 10) == luckyDraw) {
    employee.employeeRating = std::max<int64_t>(employee.employeeRating - 1, 0);
  } else if (employee.employeeMorale > happyAbove && random.integer(0, 25) == luckyDraw) {
    if (employee.employeeRating < 100) employee.employeeRating += 1;
  }
}

}  // namespace

void updateEmployeesWeekly(Game& game) {
  GameState& state = game.state;
  RecordList<Employee>& employees = state.saveAllEmployeeList;
  if (employees.empty()) return;
  const int64_t artists = activeArtists(state);
  std::map<int64_t, int64_t> staff;  // by department, those that no code stands for among them
  for (const Employee& employee : employees) staff[employee.employeeDepartmentCode] += 1;
  for (size_t i = 0; i < employees.size(); ++i) {
    employees.update(i, [&](Employee& employee) {
      age(employee, loadOf(artists, staff[employee.employeeDepartmentCode]), state, game.random);
    });
  }
  game.save(&GameState::saveAllEmployeeList);
}

}  // namespace backbeat
