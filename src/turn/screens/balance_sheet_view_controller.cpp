#include "turn/screens/balance_sheet_view_controller.h"

#include "core/money.h"
#include "turn/income_statement.h"
#include "turn/screens/money_figures.h"
#include "turn/weekly_report.h"

namespace backbeat {

namespace {

void add(Figures& figures, std::string label, double amount) {
  figures.items.push_back(dollars(std::move(label), amount, amount == 0 ? Tone::plain : toneOfAmount(amount)));
}

/// Taken from 0, so that nothing spent reads as 0 and not as its negative.
void addCost(Figures& figures, std::string label, double cost) { add(figures, std::move(label), 0 - cost); }

Figures incomeOf(const IncomeStatement& statement) {
  Figures figures;
  figures.title = "Income";
  add(figures, "Albums", statement.albums);
  add(figures, "Streams", statement.streams);
  add(figures, "Touring", statement.touring);
  add(figures, "Featured on", statement.featuredStreams);
  add(figures, "Flat fees", statement.flatFees);
  add(figures, "Festival", statement.festival);
  add(figures, "Merch", statement.merch);
  add(figures, "Music videos", statement.videos);
  figures.total = dollars("Own work", statement.income() - statement.labelAlbums - statement.labelStreams, Tone::plain);
  return figures;
}

Figures labelIncomeOf(const GameState& state, const IncomeStatement& statement) {
  Figures figures;
  figures.title = "My label";
  const std::string share =
      state.isLabelLaunched >= 1 ? "+" + withDecimals(state.labelRevenueBonus, 1) + "%" : std::string("n/a");
  add(figures, "Albums (" + share + ")", statement.labelAlbums);
  add(figures, "Streams (" + share + ")", statement.labelStreams);
  figures.total = dollars("Total income", statement.income(), Tone::plain);
  return figures;
}

Figures expensesOf(const IncomeStatement& statement) {
  Figures figures;
  figures.title = "Expenses";
  addCost(figures, "Lifestyle", statement.lifestyle);
  addCost(figures, "Family", statement.family);
  addCost(figures, "Insurance", statement.insurance);
  addCost(figures, "Property tax", statement.propertyTax);
  addCost(figures, "Merchandise", statement.merchandise);
  addCost(figures, "Office staff", statement.officeStaff);
  addCost(figures, "Office perks", statement.officePerks);
  addCost(figures, "Office rent", statement.officeRent);
  figures.total = dollars("Total expenses", 0 - statement.expenses(), Tone::plain);
  return figures;
}

}  // namespace

View BalanceSheetViewController::view() const {
  View view;
  view.title = "Income Statement";
  view.theme = Theme::bank;
  const CalendarWeek week = reportedWeek(state());
  view.subtitle = "Week " + std::to_string(week.week) + ", " + std::to_string(week.year);
  const IncomeStatement statement = incomeStatement(state());
  const double net = statement.income() - statement.expenses();
  Figures headline;
  headline.style = Figures::Style::large;
  headline.items.push_back(dollars("Net", net, toneOfAmount(net), "Without the pay of a job"));
  view.add(std::move(headline));
  view.add(incomeOf(statement));
  view.add(labelIncomeOf(state(), statement));
  view.add(expensesOf(statement));
  view.help = Help{"Income statement",
                   "The week of your last report, by kind: what its records earned, and what stands in your books as a "
                   "weekly expense.\n\nEvery song's streams are counted here, though only the most streamed song of a "
                   "week pays out."};
  return view;
}

}  // namespace backbeat
