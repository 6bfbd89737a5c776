#include "label/hiring.h"

#include <algorithm>

#include "career/ledger.h"
#include "career/studio.h"
#include "core/bands.h"
#include "core/money.h"

namespace backbeat {

namespace {

constexpr Band<int64_t, int64_t> mostCandidates[] = {{10, 1}, {20, 2}, {30, 3}, {40, 4}, {55, 5}};
/// The lowest rating of a candidate, by the best that the label attracts; far above them it is 1 again: intended.
constexpr Band<int64_t, int64_t> lowestRatings[] = {{20, 1},  {30, 5},  {40, 10}, {50, 15}, {60, 20},
                                                    {70, 25}, {80, 30}, {90, 40}, {200, 50}};
constexpr int64_t baseSalary = 15'000;
constexpr int64_t starRating = 85;
constexpr int64_t starSalary = 12'500;  ///< for each point from there on
constexpr int64_t weeksInYear = 52;

Candidate drawCandidate(Random& random, int64_t bestRating) {
  Candidate candidate;
  candidate.energy = random.integer(50, 100);
  candidate.morale = random.integer(50, 100);
  candidate.portrait = random.integer(1, staffPortraits);
  candidate.rating = random.integer(bandFor(lowestRatings, bestRating, int64_t{1}), bestRating);
  candidate.salary = candidate.rating * 100 * random.integer(9, 15) + baseSalary;
  candidate.salary += std::max<int64_t>(candidate.rating - starRating, 0) * starSalary;
  candidate.department = random.integer(0, int64_t{departmentCount} - 1);
  candidate.burnRate = random.integer(4, 8);
  return candidate;
}

std::string_view nameOf(const Candidate& candidate) {
  return departments[static_cast<size_t>(candidate.department)].name;
}

Employee employeeFrom(const Candidate& candidate, int64_t id) {
  Employee employee;
  employee.employeeId = id;
  employee.employeeSalary = candidate.salary;
  employee.employeeDepartmentCode = candidate.department;
  employee.employeeImage = "staff" + std::to_string(candidate.portrait) + ".png";
  employee.employeeOriginalRating = candidate.rating;
  employee.employeeRating = candidate.rating;
  employee.employeeEnergy = static_cast<double>(candidate.energy);
  employee.employeeMorale = static_cast<double>(candidate.morale);
  employee.employeeBurnRate = candidate.burnRate;
  return employee;
}

}  // namespace

int64_t weeklyPay(int64_t salary) { return salary / weeksInYear; }

int64_t Candidate::weeklySalary() const { return weeklyPay(salary); }

int64_t recordLabelRating(const GameState& state) {
  const int64_t traits =
      state.businessTrait1 + state.businessTrait2 + state.businessTrait3 + state.businessTrait4 + state.businessTrait5;
  return std::max<int64_t>((2 * traits + studioRating(state)) / 6, 1);
}

std::vector<Candidate> generateCandidates(Game& game) {
  const int64_t bestRating = recordLabelRating(game.state);
  const int64_t most = bandFor(mostCandidates, game.state.businessTrait4, int64_t{1});
  std::vector<Candidate> candidates(static_cast<size_t>(game.random.integer(1, most)));
  for (Candidate& candidate : candidates) candidate = drawCandidate(game.random, bestRating);
  return candidates;
}

Outcome askToHire(const GameState& state, const Candidate& candidate, Action confirmed) {
  const std::string department(nameOf(candidate));
  return ask<"🗂 Offer Candidate 🗂">(
      "Hiring this team member will add +" + std::to_string(candidate.rating) + " to the " + department +
          " department at " + state.myLabelName + ".\n\nDEPARTMENT\n" + department + "\n\nWEEKLY COST\n" +
          currency(static_cast<double>(candidate.weeklySalary())) + "\n\nWould you like to offer this candidate a job?",
      "No", {"Yes, Offer", std::move(confirmed), AlertButton::Style::normal});
}

bool hasFreeDesk(const GameState& state) {
  // Past the label's codes a salary would be taken for a cost of the shop.
  return static_cast<int64_t>(state.saveAllEmployeeList.size()) < state.officeCapacity &&
         state.employeeId < expense::lastLabelCost;
}

Outcome hireEmployee(Game& game, const Candidate& candidate) {
  GameState& state = game.state;
  if (!hasFreeDesk(state)) {
    return refuse<"🖥 No Office Space 🖥">(
        "\nYou do not have enough office space to hire this employee. Upgrade your office to accommodate a larger "
        "staff.");
  }
  state.employeeId += 1;
  state.saveAllEmployeeList.append(employeeFrom(candidate, state.employeeId));
  addExpense(state, nameOf(candidate), static_cast<double>(candidate.weeklySalary()), state.employeeId);
  game.save(&GameState::employeeId, &GameState::saveAllEmployeeList, &GameState::saveAllWeeklyLineItems);
  return successAndClose();
}

}  // namespace backbeat
