// What of an open report would be lost with the launch: how the career stood before the week, and what the report
// itself moved. It is kept from the opening of the report until it is closed, so that a launch in between tells it
// again. A closed one leaves which firsts were done by then, of those that carry no week.
#pragma once

#include "core/game.h"
#include "turn/weekly_report.h"

namespace backbeat {

/// Whether the report of the week that ended last was opened and not closed yet.
bool isReportOpen(const GameState& state);

/// Keeps what the report tells by as it opens, and then what its first appearance added.
void rememberReport(Game& game, const WeeklyReport& report);
void rememberAppearance(Game& game, const WeeklyReport& report);

/// The report as it was kept. What the news compare stands in the turn and the launch again, as after the turn.
WeeklyReport recalledReport(Game& game);

/// As a turn begins: what was done since the last report and never before in this life. In a career that does not say
/// how it stood at that report, such as one of an older version, nothing counts as the first.
void noteFirsts(Game& game);

/// The report is closed.
void forgetReport(Game& game);

}  // namespace backbeat
