#include "turn/income_statement.h"

#include "core/view_find.h"
#include "support/world.h"
#include "turn/screens/balance_sheet_view_controller.h"
#include "turn/screens/expense_view_controller.h"
#include "turn/screens/financial_view_controller.h"
#include "turn/weekly_report.h"

namespace backbeat {
namespace {

void addItem(GameState& state, int64_t typeOfExpense, double amount, bool isExpense = true) {
  WeeklyLineItem item;
  item.title = "code " + std::to_string(typeOfExpense);
  item.typeOfExpense = typeOfExpense;
  item.amount = amount;
  item.isExpense = isExpense;
  state.saveAllWeeklyLineItems.append(std::move(item));
}

TEST(IncomeStatement, SortsExpensesByCode) {
  World world;
  GameState& state = world.state;
  // One power of two for each entry: a sum tells which entries are in it.
  const int64_t codes[] = {4, 5000, 5999, 6969, 6999, 7000, 7999, 8000, 9999, 10'000, 11'999, 12'000, 24'999, 25'000};
  double amount = 1;
  for (const int64_t code : codes) {
    addItem(state, code, amount);
    amount *= 2;
  }
  addItem(state, 7000, 1e6, false);
  const IncomeStatement statement = incomeStatement(state);
  EXPECT_DOUBLE_EQ(statement.insurance, 2 + 4);
  EXPECT_DOUBLE_EQ(statement.propertyTax, 32 + 64);
  EXPECT_DOUBLE_EQ(statement.officeStaff, 512 + 1024);
  EXPECT_DOUBLE_EQ(statement.merchandise, 8192);
  EXPECT_DOUBLE_EQ(statement.lifestyle, 1 + 8 + 16 + 128 + 256 + 2048 + 4096) << "label costs past the salaries too";
  EXPECT_DOUBLE_EQ(statement.expenses(), 16'383);

  const View expenses = ExpenseViewController(world.game).view();
  EXPECT_EQ(std::get<Figures>(expenses.blocks.at(0)).title, "Weekly Lifestyle Expenses Only: $9");
}

TEST(IncomeStatement, SumsTheReportedWeekAloneWithFamilyAndOffice) {
  World world;
  GameState& state = world.state;
  state.weekNumber = 1;  // week 52 of the year before is reported
  state.yearNumber = 2024;
  state.weekNumberForTracking = 53;
  for (const int64_t week : {51, 52}) {
    for (const double dollars : {30.0, 12.0}) {
      WeeklySongListens listens;
      listens.weekNumber = week;
      listens.yearNumber = 2023;
      listens.totalStreamRevenue = dollars;
      state.saveAllWeeklySongListens.append(listens);
    }
    FeaturedOn song;
    song.releaseWeek = week;
    song.flatFee = 500;
    state.saveAllFeaturedOnList.append(song);
    SignedArtistWeeklyAlbumSales sales;
    sales.weekNumber = week;
    sales.yearNumber = 2023;
    sales.albumRevenue = 1'000;
    state.saveAllSignedArtistWeeklyAlbumSales.append(sales);
  }
  Child child;
  child.weeklyFinancialCost = 200;
  child.typeOfRelationship = 1;
  state.saveAllChildList.append(child);
  child.typeOfRelationship = -1;
  state.saveAllChildList.append(child);
  for (int i = 0; i < 2; ++i) state.saveAllEmployeeList.append(Employee());
  state.labelOfficePerkSpend = 15;
  state.labelOfficeRent = 70;
  state.labelRevenueBonus = 7.5;

  IncomeStatement statement = incomeStatement(state);
  EXPECT_DOUBLE_EQ(statement.streams, 42) << "all songs, though only the first was paid";
  EXPECT_DOUBLE_EQ(statement.flatFees, 500);
  EXPECT_DOUBLE_EQ(statement.expenses(), 200 + 30 + 70);
  BalanceSheetViewController screen(world.game);
  EXPECT_EQ(figureLabelled(screen.view(), "Albums (n/a)").value, "$0");

  state.isLabelLaunched = 1;
  statement = incomeStatement(state);
  EXPECT_DOUBLE_EQ(statement.labelAlbums, 1'075);
  EXPECT_EQ(figureLabelled(screen.view(), "Albums (+7.5%)").value, "$1,075");
  EXPECT_EQ(figureLabelled(screen.view(), "Total income").value, "$1,617");
  EXPECT_EQ(screen.view().subtitle, "Week 52, 2023");
}

TEST(IncomeStatement, TellsOfNoWeekBeforeTheFirst) {
  World world;
  BalanceSheetViewController screen(world.game);
  EXPECT_EQ(screen.view().subtitle, "");
  EXPECT_EQ(blocksOf<Figures>(screen.view()).size(), 1u) << "the net worth alone";
  world.state.weekNumber = world.state.weekNumberForTracking = 2;
  EXPECT_EQ(screen.view().subtitle, "Week 1, 2023");
}

TEST(Finance, TheStandingNetLeavesOutAJobThatHasRunOut) {
  World world;
  world.state.weeklyJobIncome = 320;
  world.state.weeklyJobContractRemaining = 1;
  addItem(world.state, 6969, 50);
  EXPECT_DOUBLE_EQ(standingWeeklyNet(world.state), 270);
  world.state.weeklyJobContractRemaining = 0;
  EXPECT_DOUBLE_EQ(standingWeeklyNet(world.state), -50);
  FinancialViewController screen(world.game);
  EXPECT_EQ(rowTitled(screen.view(), "Standing net").value, "-$50");
}

}  // namespace
}  // namespace backbeat
