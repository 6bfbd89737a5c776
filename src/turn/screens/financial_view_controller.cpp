#include "turn/screens/financial_view_controller.h"

#include "career/ledger.h"
#include "core/money.h"
#include "core/view_words.h"
#include "turn/income_statement.h"
#include "turn/screens/money_figures.h"
#include "turn/weekly_report.h"
#include "wealth/net_assets.h"

namespace backbeat {

namespace {

Row account(std::string id, std::string glyph, std::string title, std::string subtitle, std::string value) {
  Row row = wayTo(std::move(id), std::move(glyph), std::move(title), std::move(subtitle));
  row.value = std::move(value);
  return row;
}

}  // namespace

Outcome FinancialViewController::act(const Action& action) {
  for (const std::string_view segue : {"goToExpenseScreen", "goToBalanceSheet", "goToNetWorth"}) {
    if (action.id == segue) return goTo(action.id);
  }
  return {};
}

View FinancialViewController::view() const {
  View view{.title = "Business", .subtitle = "Where the money comes from and goes", .theme = Theme::bank};
  const double net = standingWeeklyNet(state());
  const Tone toneOfCash = state().totalCashAvailable < 0 ? Tone::bad : Tone::plain;
  view.add(Figures{.items = {dollars("Cash", state().totalCashAvailable, toneOfCash)}, .style = Figures::Style::large});
  view.add(Rows{{{.picture = icon("cash"),
                  .title = "Standing net",
                  .subtitle = "Job and weekly entries",
                  .value = currency(net),
                  .note = "a week",
                  .tone = toneOfAmount(net)}}});
  view.add(Heading{"Accounts"});
  const IncomeStatement statement = incomeStatement(state());
  view.add(Rows{
      {account("goToExpenseScreen", "food", "Expenses", "Weekly lifestyle expenses",
               currency(-livingExpenses(state()))),
       account("goToBalanceSheet", "document", "Income Statement", "Week " + std::to_string(reportedWeek(state()).week),
               currency(statement.income() - statement.expenses())),
       account("goToNetWorth", "trend", "Net Worth", "Everything you own", currency(netAssets(state())))}});
  return view;
}

}  // namespace backbeat
