#include "career/screens/energy_transparency_view_controller.h"

#include <algorithm>

#include "career/energy.h"
#include "career/ledger.h"
#include "core/calendar.h"
#include "core/view_words.h"

namespace backbeat {

namespace {

constexpr int64_t lastLifestyle = 9;

/// Only lines with a value are told.
void addLine(Rows& rows, std::string glyph, std::string title, int64_t amount) {
  if (amount == 0) return;
  rows.items.push_back({.picture = icon(std::move(glyph)),
                        .title = std::move(title),
                        .value = (amount > 0 ? "+" : "") + std::to_string(amount),
                        .tone = toneOfChange(amount)});
}

Rows weeklyCosts(const GameState& state) {
  Rows rows;
  if (!state.saveAllChildList.empty()) addLine(rows, "people", "Children ", -state.childEnergyCost);
  if (state.weeklyEnergyCost >= 1) {
    const int64_t weeks = state.weeklyJobContractRemaining;
    addLine(rows, "briefcase", "Job (" + std::to_string(weeks) + (weeks <= 1 ? " week left) " : " weeks left) "),
            -state.weeklyEnergyCost);
  }
  addLine(rows, "cart", "Merch ", -state.merchEnergyCost);
  addLine(rows, "ticket", "On Tour ", -state.onTourEnergyCost);
  addLine(rows, "label", "Record Label ", -state.openLabelEnergyCost);
  return rows;
}

/// Years since the career began; with an inheritance, since this generation took over. A takeover without a year counts
/// from the very beginning.
int64_t yearsAged(const GameState& state) {
  const bool heir = !state.saveAllLegacyList.empty() && state.ageAtTakeover != 0;
  return state.yearNumber - (heir ? state.ageAtTakeover : firstYear);
}

Rows ceilingLosses(const GameState& state) {
  Rows rows;
  addLine(rows, "calendar", "Aging (-1/yr) ", -yearsAged(state));
  addLine(rows, "health", "Annual Checkup ", std::min(state.annualCheckupTotal, int64_t{0}));
  addLine(rows, "heart", "Breakup Drama ", -state.energyLossExDrama);
  addLine(rows, "people", "Child Abandonment ", -state.childAbandonmentEnergyLoss);
  return rows;
}

/// Fashion counts with the others, though its bonus is virality and never moved the ceiling: intended.
int64_t lifestyleBoost(const GameState& state) {
  int64_t sum = 0;
  for (const WeeklyLineItem& item : state.saveAllWeeklyLineItems) {
    const int64_t code = item.typeOfExpense;
    if (code <= lastLifestyle || (code >= expense::firstProperty && code <= expense::lastProperty)) {
      sum += item.energyBoost;
    }
  }
  return sum;
}

Rows ceilingGains(const GameState& state) {
  Rows rows;
  addLine(rows, "health", "Annual Checkup ", std::max(state.annualCheckupTotal, int64_t{0}));
  addLine(rows, "life", "Lifestyle ", lifestyleBoost(state));
  int64_t garage = 0;
  for (const Transportation& vehicle : state.saveAllTransportationOwnedList) garage += vehicle.energyBonus;
  addLine(rows, "car", "Garage ", garage);
  int64_t relationship = 0;
  for (const Matches& match : state.saveAllMatchesList) {
    if (match.relationshipState >= 1) relationship += match.energyBonus;
  }
  addLine(rows, "heart", "Relationship ", relationship);
  return rows;
}

void describe(View& view, std::string heading, Rows rows, std::string none) {
  view.add(Heading{std::move(heading)});
  if (rows.items.empty()) {
    view.add(caption(std::move(none)));
  } else {
    view.add(std::move(rows));
  }
}

}  // namespace

View EnergyTransparencyViewController::view() const {
  View view{.title = "Energy"};
  view.add(Tiles{
      {{.icon = "bolt", .label = "Now", .value = std::to_string(state().totalEnergyAvailable), .note = "this week"},
       {.icon = "trend", .label = "Ceiling", .value = std::to_string(state().totalEnergyMax), .note = "max energy"},
       {.icon = "calendar",
        .label = "Next week",
        .value = std::to_string(nextWeeksEnergy(state())),
        .note = "after costs"}}});
  describe(view, "ENERGY COSTS (WEEKLY)\n", weeklyCosts(state()), "Nothing takes energy from you every week.");
  describe(view, "\nMAX ENERGY LOSS\n", ceilingLosses(state()), "Nothing has worn you out yet.");
  describe(view, "\nMAX ENERGY GAIN\n", ceilingGains(state()), "Eat, rest and move better to raise your ceiling.");
  view.help =
      Help{.title = "Energy",
           .text =
               "Every week your energy refills to the ceiling, less what your duties cost. What you do not use is "
               "gone; only energy above the ceiling stays.\n\nEach New Year takes one point of ceiling. A better "
               "life gives some back."};
  return view;
}

}  // namespace backbeat
