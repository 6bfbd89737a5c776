#include "label/screens/label_hire_staff_view_controller.h"

#include <algorithm>

#include "core/money.h"
#include "core/view_words.h"
#include "label/screens/label_words.h"

namespace backbeat {

namespace {

double weeklyExpenses(const GameState& state) {
  double sum = 0;
  for (const WeeklyLineItem& item : state.saveAllWeeklyLineItems) {
    if (item.isExpense) sum += item.amount;
  }
  return sum;
}

Card candidateCard(const Candidate& candidate, const LabelRatings& label, size_t number, bool hasDesk) {
  const auto code = static_cast<size_t>(candidate.department);
  const DepartmentStanding& now = label.departments[code];
  const int64_t then = (now.ratings + candidate.rating) / (now.staff + 1);
  return {.picture = staffPortrait(candidate.portrait),
          .title = std::string(departments[code].name),
          .text = currency(static_cast<double>(candidate.salary)) + " a year · " +
                  currency(static_cast<double>(candidate.weeklySalary())) + " a week\n" +
                  std::to_string(candidate.burnRate) + " BURN/WK",
          .tone = toneOfBand(static_cast<double>(candidate.rating)),
          .value = std::to_string(candidate.rating) + " rating",
          .meters = {levelMeter("Energy", static_cast<double>(candidate.energy)),
                     levelMeter("Happiness", static_cast<double>(candidate.morale))},
          .buttons = {{.id = "offerJob:" + std::to_string(number),
                       .label = "Offer a Job",
                       .style = Button::Style::primary,
                       .tone = hasDesk ? Tone::plain : Tone::locked}},
          .note = hasDesk ? std::string(departments[code].shortName) + " " + std::to_string(now.rating) + " → " +
                                std::to_string(then)
                          : "No desk is free"};
}

}  // namespace

Outcome LabelHireStaffViewController::open() {
  candidates_ = generateCandidates(game_);
  return {};
}

Outcome LabelHireStaffViewController::press(const Action& action) {
  const auto number = optionNumber(action.argument(), candidates_.size());
  if (!number) return {};
  const Candidate& candidate = candidates_[*number];
  if (action.verb() == "offerJob") {
    return askToHire(state(), candidate, {"confirmHire:" + std::to_string(*number), ""});
  }
  if (action.verb() == "confirmHire") return hireEmployee(game_, candidate);
  return {};
}

void LabelHireStaffViewController::describe(View& view) const {
  view.title = "Hire";
  view.subtitle = state().myLabelName;
  const bool hasDesk = hasFreeDesk(state());
  view.add(Tiles{
      {{.label = candidates_.size() == 1 ? "candidate this visit" : "candidates this visit",
        .value = std::to_string(candidates_.size())},
       {.label = "desks taken",
        .value = std::to_string(state().saveAllEmployeeList.size()) + " of " + std::to_string(state().officeCapacity),
        .tone = hasDesk ? Tone::plain : Tone::warning},
       {.label = "Weekly Exp: ", .value = currency(weeklyExpenses(state()))}}});
  const LabelRatings label = departmentRatings(state());
  for (size_t i = 0; i < candidates_.size(); ++i) {
    view.add(candidateCard(candidates_[i], label, i, hasDesk));
  }
  view.add(caption("Others come by at your next visit."));
  view.help =
      Help{.title = "🧐 RECRUITING 🧐",
           .text =
               "\nRatings are based on your business traits. The higher you level your business traits, the better "
               "talent you will attract.\n\nENERGY\nEnergy is deducted each week. At low levels, energy will decrease "
               "happiness at a faster rate.\n\nHAPPINESS\nHappiness decreases at 50% slower than energy. Employee "
               "happiness can increase or decrease the employee's rating if high or low.\n\nBURN RATE\nThe amount of "
               "energy deducted each week. Employees can handle a ratio of 1:3 artists before the burn rate starts to "
               "increase. Hire more staff to handle more artists effectively."};
}

}  // namespace backbeat
