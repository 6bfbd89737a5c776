#include "turn/screens/expense_view_controller.h"

#include "career/ledger.h"
#include "career/lifestyle.h"
#include "core/money.h"
#include "turn/screens/money_figures.h"

namespace backbeat {

namespace {

Picture glyphOf(const WeeklyLineItem& item) {
  for (const LifestyleCategory& category : lifestyleCategories) {
    if (category.typeOfExpense == item.typeOfExpense) return icon(std::string(category.icon));
  }
  return icon("life");
}

/// The choices of daily life, and the basic needs: what each of them gives.
Rows whatItGives(const GameState& state) {
  Rows rows;
  for (const WeeklyLineItem& item : state.saveAllWeeklyLineItems) {
    if (item.typeOfExpense > expense::lastChoice && item.typeOfExpense != expense::basicNeeds) continue;
    rows.items.push_back({.picture = glyphOf(item),
                          .title = item.title,
                          .subtitle = "Since " + std::to_string(item.year),
                          .value = "+" + std::to_string(item.energyBoost),
                          .note = item.typeOfExpense == expense::fashion ? "virality" : "max energy"});
  }
  return rows;
}

}  // namespace

View ExpenseViewController::view() const {
  View view{.title = "Expenses", .theme = Theme::bank};
  const double sum = livingExpenses(state());
  Figures living{.title = "Weekly Lifestyle Expenses Only: " + currency(sum)};
  for (const WeeklyLineItem& item : state().saveAllWeeklyLineItems) {
    if (isLivingExpense(item)) living.items.push_back(dollars(item.title, -item.amount, Tone::bad));
  }
  if (living.items.empty()) {
    view.add(EmptyHint{.icon = "cash", .text = "Life costs you nothing yet. Enjoy it while it lasts."});
    return view;
  }
  living.total = dollars("A week", -sum, Tone::plain);
  view.add(std::move(living));
  view.add(Heading{"What it gives you"});
  view.add(whatItGives(state()));
  return view;
}

}  // namespace backbeat
