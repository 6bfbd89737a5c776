#include "turn/screens/financial_view_controller.h"

#include "core/menu.h"
#include "core/money.h"
#include "core/view_words.h"
#include "turn/screens/money_figures.h"
#include "turn/weekly_report.h"

namespace backbeat {

Outcome FinancialViewController::act(const Action& action) { return followMenu(game_, businessTab, action); }

View FinancialViewController::view() const {
  View view{.title = "Business", .subtitle = "Where the money comes from and goes", .theme = Theme::bank};
  const double net = standingWeeklyNet(state());
  const Tone toneOfCash = state().totalCashAvailable < 0 ? Tone::bad : Tone::plain;
  view.add(Figures{.items = {dollars("Cash", state().totalCashAvailable, toneOfCash)}, .style = Figures::Style::large});
  view.add(Rows{{{.picture = icon("cash"),
                  .title = "Standing net",
                  .subtitle = standingNetCaption(state()),
                  .value = currency(net),
                  .note = "a week",
                  .tone = toneOfChange(net)}}});
  addMenu(view, game_, businessTab);
  return view;
}

}  // namespace backbeat
