#include "turn/screens/balance_sheet_view_controller.h"

#include "core/calendar.h"
#include "core/money.h"
#include "core/view_words.h"
#include "turn/income_statement.h"
#include "turn/screens/money_figures.h"
#include "turn/weekly_report.h"

namespace backbeat {

namespace {

Figure line(std::string label, double amount) { return dollars(std::move(label), amount, toneOfChange(amount)); }

/// Taken from 0, so that nothing spent reads as 0 and not as its negative.
Figure cost(std::string label, double amount) { return line(std::move(label), 0 - amount); }

Figures incomeOf(const IncomeStatement& statement) {
  const double ownWork = statement.income() - statement.labelAlbums - statement.labelStreams;
  return {.title = "Income",
          .items = {line("Albums", statement.albums), line("Streams", statement.streams),
                    line("Touring", statement.touring), line("Featured on", statement.featuredStreams),
                    line("Flat fees", statement.flatFees), line("Festival", statement.festival),
                    line("Merch", statement.merch), line("Music videos", statement.videos)},
          .total = dollars("Own work", ownWork, Tone::plain)};
}

Figures labelIncomeOf(const GameState& state, const IncomeStatement& statement) {
  const std::string share =
      state.isLabelLaunched >= 1 ? "+" + withDecimals(state.labelRevenueBonus, 1) + "%" : std::string("n/a");
  return {.title = "My label",
          .items = {line("Albums (" + share + ")", statement.labelAlbums),
                    line("Streams (" + share + ")", statement.labelStreams)},
          .total = dollars("Total income", statement.income(), Tone::plain)};
}

Figures expensesOf(const IncomeStatement& statement) {
  return {.title = "Expenses",
          .items = {cost("Lifestyle", statement.lifestyle), cost("Family", statement.family),
                    cost("Insurance", statement.insurance), cost("Property tax", statement.propertyTax),
                    cost("Merchandise", statement.merchandise), cost("Office staff", statement.officeStaff),
                    cost("Office perks", statement.officePerks), cost("Office rent", statement.officeRent)},
          .total = dollars("Total expenses", 0 - statement.expenses(), Tone::plain)};
}

}  // namespace

View BalanceSheetViewController::view() const {
  View view{.title = "Income Statement", .theme = Theme::bank};
  view.help =
      Help{.title = "Income statement",
           .text =
               "The week of your last report, by kind: what its records earned, and what stands in your books as a "
               "weekly expense. The pay of a job and other standing income are not among it.\n\nEvery song's streams "
               "are counted here, though only the most streamed song of a week pays out."};
  if (!anyWeekReported(state())) {
    view.add(EmptyHint{.icon = "document", .text = "No week has ended yet. Your first report fills these lines."});
    describeNetWorth(view, state());
    return view;
  }
  const CalendarWeek week = reportedWeek(state());
  const IncomeStatement statement = toldStatement(state());
  const double net = statement.income() - statement.expenses();
  view.subtitle = "Week " + std::to_string(week.week) + ", " + std::to_string(week.year);
  view.add(Figures{
      .items = {dollars("Net", net, toneOfChange(net), "Music, shows and label less standing costs; no job pay")},
      .style = Figures::Style::large});
  view.add(incomeOf(statement));
  view.add(labelIncomeOf(state(), statement));
  view.add(expensesOf(statement));
  view.add(Heading{"What it has come to"});
  describeNetWorth(view, state());
  return view;
}

}  // namespace backbeat
