#include "wealth/screens/venture_report.h"

#include "core/short_money.h"
#include "core/view_words.h"
#include "wealth/ventures.h"

namespace backbeat {

namespace {

const char* sentenceOf(const VentureWeek& week) {
  if (week.isRevalued) return " has a new valuation.";
  switch (week.exit) {
    case venture_exit::acquired: return " was acquired.";
    case venture_exit::listed: return " IPO'd today.";
    default: return " has filed for bankruptcy.";
  }
}

std::string_view badgeOf(int64_t exit) {
  switch (exit) {
    case venture_exit::acquired: return "ACQUIRED";
    case venture_exit::listed: return "IPO";
    case venture_exit::bankrupt: return "BANKRUPT";
    default: return "";
  }
}

}  // namespace

Rows startupsOfWeek(const Game& game) {
  Rows rows;
  for (const VentureWeek& week : game.turn.ventures) {
    const auto position = venturePosition(game.state, week.businessId);
    if (!position) continue;
    const Venture& venture = game.state.saveAllVentureInvestments[*position];
    Row row{.picture = markOf(venture),
            .title = venture.businessName + sentenceOf(week),
            .value = abbreviatedDollars(static_cast<double>(venture.lastValuation)),
            .badge = std::string(badgeOf(week.exit))};
    if (week.isRevalued) {
      row.note = "was " + abbreviatedDollars(static_cast<double>(week.valuationBefore));
      row.tone = toneOfChange(venture.lastValuation - week.valuationBefore);
    }
    rows.items.push_back(std::move(row));
  }
  return rows;
}

}  // namespace backbeat
