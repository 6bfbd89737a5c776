#include "turn/screens/financial_view_controller.h"

#include "core/menu.h"
#include "core/money.h"
#include "turn/screens/money_figures.h"
#include "turn/weekly_report.h"

namespace backbeat {

Outcome FinancialViewController::act(const Action& action) { return followMenu(game_, businessTab, action); }

View FinancialViewController::view() const {
  View view;
  view.title = "Business";
  view.subtitle = "Where the money comes from and goes";
  view.theme = Theme::bank;
  const double net = standingWeeklyNet(state());
  Figures cash;
  cash.style = Figures::Style::large;
  cash.items.push_back(
      dollars("Cash", state().totalCashAvailable, state().totalCashAvailable < 0 ? Tone::bad : Tone::plain));
  view.add(std::move(cash));
  Row standing;
  standing.picture = icon("cash");
  standing.title = "Standing net";
  standing.subtitle = "Job and weekly entries";
  standing.value = currency(net);
  standing.note = "a week";
  standing.tone = toneOfAmount(net);
  view.add(Rows{{std::move(standing)}});
  addMenu(view, game_, businessTab);
  return view;
}

}  // namespace backbeat
