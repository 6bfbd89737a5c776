#include "turn/screens/expense_view_controller.h"

#include "career/ledger.h"
#include "career/lifestyle.h"
#include "core/money.h"
#include "turn/screens/money_figures.h"

namespace backbeat {

namespace {

/// The choices of daily life, and the basic needs: what each of them gives.
Rows whatItGives(const GameState& state) {
  Rows rows;
  for (const WeeklyLineItem& item : state.saveAllWeeklyLineItems) {
    if (item.typeOfExpense > expense::lastChoice && item.typeOfExpense != expense::basicNeeds) continue;
    Row row;
    row.picture = icon("life");
    for (const LifestyleCategory& category : lifestyleCategories) {
      if (category.typeOfExpense == item.typeOfExpense) row.picture = icon(std::string(category.icon));
    }
    row.title = item.title;
    row.subtitle = "Since " + std::to_string(item.year);
    row.value = "+" + std::to_string(item.energyBoost);
    row.note = item.typeOfExpense == expense::fashion ? "virality" : "max energy";
    rows.items.push_back(std::move(row));
  }
  return rows;
}

}  // namespace

View ExpenseViewController::view() const {
  View view;
  view.title = "Expenses";
  view.theme = Theme::bank;
  Figures living;
  const double sum = livingExpenses(state());
  living.title = "Weekly Lifestyle Expenses Only: " + currency(sum);
  for (const WeeklyLineItem& item : state().saveAllWeeklyLineItems) {
    if (isLivingExpense(item)) living.items.push_back(dollars(item.title, -item.amount, Tone::bad));
  }
  if (living.items.empty()) {
    view.add(EmptyHint{"cash", "Life costs you nothing yet. Enjoy it while it lasts."});
    return view;
  }
  living.total = dollars("A week", -sum, Tone::plain);
  view.add(std::move(living));
  view.add(Heading{"What it gives you", {}});
  view.add(whatItGives(state()));
  return view;
}

}  // namespace backbeat
