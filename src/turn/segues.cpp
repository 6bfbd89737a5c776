#include "turn/segues.h"

#include "turn/screens/balance_sheet_view_controller.h"
#include "turn/screens/data_view_controller.h"
#include "turn/screens/expense_view_controller.h"
#include "turn/screens/net_worth_view_controller.h"
#include "turn/screens/weekly_summary_view_controller.h"

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

}  // namespace

const Room turnRoom = {.segues = segues};

}  // namespace backbeat
