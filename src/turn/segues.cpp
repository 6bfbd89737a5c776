#include "turn/segues.h"

#include "career/ledger.h"
#include "core/calendar.h"
#include "core/money.h"
#include "turn/income_statement.h"
#include "turn/news.h"
#include "turn/screens/balance_sheet_view_controller.h"
#include "turn/screens/data_view_controller.h"
#include "turn/screens/expense_view_controller.h"
#include "turn/screens/net_worth_view_controller.h"
#include "turn/screens/weekly_summary_view_controller.h"
#include "turn/weekly_report.h"
#include "wealth/net_assets.h"

namespace backbeat {

namespace {

using enum Segue::Presentation;

constexpr Segue segues[] = {
    {"goToData", "DataViewController", push, makeScreen<DataViewController>},
    {"goToWeeklySummary", "WeeklySummaryViewController", modal, makeScreen<WeeklySummaryViewController>},
    {"goToExpenseScreen", "ExpenseViewController", push, makeScreen<ExpenseViewController>},
    {"goToBalanceSheet", "BalanceSheetViewController", push, makeScreen<BalanceSheetViewController>},
    {"goToNetWorth", "NetWorthViewController", push, makeScreen<NetWorthViewController>},
};

void describeLiving(const Game& game, Row& row) { row.value = currency(-livingExpenses(game.state)); }

void describeStatement(const Game& game, Row& row) {
  if (!anyWeekReported(game.state)) {
    row.subtitle = "After your first week";
    return;
  }
  const IncomeStatement statement = toldStatement(game.state);
  row.subtitle = "Week " + std::to_string(reportedWeek(game.state).week) + ", without job pay";
  row.value = currency(statement.income() - statement.expenses());
}

void describeNetWorth(const Game& game, Row& row) { row.value = currency(netAssets(game.state)); }

constexpr MenuLine menu[] = {
    {.tab = lifeTab,
     .section = "Next week",
     .order = 420,
     .icon = "cash",
     .title = "Living",
     .subtitle = "Lifestyle and basic needs",
     .segue = "goToExpenseScreen",
     .describe = describeLiving},
    {.tab = businessTab,
     .section = "Accounts",
     .order = 110,
     .icon = "food",
     .title = "Expenses",
     .subtitle = "Weekly lifestyle expenses",
     .segue = "goToExpenseScreen",
     .describe = describeLiving},
    {.tab = businessTab,
     .section = "Accounts",
     .order = 120,
     .icon = "document",
     .title = "Income Statement",
     .segue = "goToBalanceSheet",
     .describe = describeStatement},
    {.tab = businessTab,
     .section = "Accounts",
     .order = 130,
     .icon = "trend",
     .title = "Net Worth",
     .subtitle = "Everything you own",
     .segue = "goToNetWorth",
     .describe = describeNetWorth},
};

}  // namespace

const Room turnRoom = {
    .name = "turn", .segues = segues, .menu = menu, .addNeeds = addTurnNeeds, .addNews = addTurnNews};

}  // namespace backbeat
