#include "career/screens/daily_life_view_controller.h"

#include <array>

#include "career/energy.h"
#include "career/job_board.h"
#include "career/lifestyle.h"
#include "career/studio.h"
#include "career/traits.h"
#include "core/money.h"

namespace backbeat {

namespace {

/// One entry of the menu for each lifestyle category, by its code.
constexpr std::array<std::string_view, lifestyleCategories.size()> lifestyleButtons = {
    "goToFoodButton", "goToFashionButton", "goToHealthButton", "goToHomeButton", "goToTransportationButton"};
constexpr std::array<const char*, lifestyleCategories.size()> lifestyleTitles = {"Food", "Fashion", "Health", "Home",
                                                                                 "Transportation"};

Row jobRow(const GameState& state) {
  Row row = wayTo("goToJobBoardButton", "briefcase", "Job Board", "Work that pays weekly");
  if (state.weeklyJobContractRemaining > 0) {
    row.subtitle =
        currency(state.weeklyJobIncome) + "/week · " + counted(state.weeklyJobContractRemaining, "week") + " left";
  }
  row.price = jobBoardCost;
  return row;
}

Row lifestyleRow(const GameState& state, size_t number) {
  const LifestyleCategory& category = lifestyleCategories[number];
  const auto chosen = lifestyleEntry(state, category);
  Row row = wayTo(std::string(lifestyleButtons[number]), std::string(category.icon), lifestyleTitles[number],
                  chosen ? chosen->title : "Nothing chosen yet");
  if (chosen) {
    row.value = "-" + currency(chosen->amount);
    row.note = "+" + std::to_string(chosen->energyBoost) + (category.givesVirality() ? " virality" : " max energy");
  }
  return row;
}

std::string bestTrait(const GameState& state) {
  const Trait* best = &traits.front();
  for (const Trait& trait : traits) {
    if (!trait.needsLabel && state.*trait.level > state.*best->level) best = &trait;
  }
  return "Best: " + std::string(best->title) + " " + std::to_string(state.*best->level);
}

}  // namespace

Outcome DailyLifeViewController::act(const Action& action) {
  if (action.id == "goToJobBoardButton") return goTo("goToJobBoard");
  for (size_t i = 0; i < lifestyleButtons.size(); ++i) {
    if (action.id == lifestyleButtons[i]) return goTo("goToLifestyleChoices", std::to_string(i));
  }
  for (const std::string_view segue : {"goToMyMusic", "goToMyStudio", "goToEnergyTransparency", "goToExpenseScreen"}) {
    if (action.id == segue) return goTo(action.id);
  }
  return {};
}

View DailyLifeViewController::view() const {
  View view;
  view.title = "Daily Life";
  view.subtitle = "What you do between the songs";
  view.picture = person(state().myArtistsName);
  describeSkills(view);
  describeLifestyle(view);
  describeAccounts(view);
  return view;
}

void DailyLifeViewController::describeSkills(View& view) const {
  view.add(Heading{"Get better", {}});
  Row studio = wayTo("goToMyStudio", "studio", "My Studio", "Where you record for free");
  studio.value = std::to_string(studioRating(state()));
  studio.note = "rating";
  view.add(Rows{{wayTo("goToMyMusic", "mic", "Traits", bestTrait(state())), std::move(studio)}});
  view.add(Heading{"Work", {}});
  view.add(Rows{{jobRow(state())}});
}

void DailyLifeViewController::describeLifestyle(View& view) const {
  view.add(Heading{"Lifestyle", {}});
  Rows rows;
  for (size_t i = 0; i < lifestyleCategories.size(); ++i) rows.items.push_back(lifestyleRow(state(), i));
  view.add(std::move(rows));
}

void DailyLifeViewController::describeAccounts(View& view) const {
  view.add(Heading{"Next week", {}});
  Row energy = wayTo("goToEnergyTransparency", "bolt", "Energy", "After standing costs");
  energy.value = std::to_string(nextWeeksEnergy(state()));
  Row expenses = wayTo("goToExpenseScreen", "cash", "Living", "Lifestyle and basic needs");
  expenses.value = currency(-livingExpenses(state()));
  view.add(Rows{{std::move(energy), std::move(expenses)}});
}

}  // namespace backbeat
