// How a week is told that brought no headline.
#pragma once

#include <string>

#include "core/game.h"
#include "turn/weekly_report.h"

namespace backbeat {

/// One or two sentences, chosen by what the week was: the same facts give the same words.
std::string weekStory(const Game& game, const WeeklyReport& report);

/// The song's streams of the week before the reported one; nothing when it had none recorded then.
std::optional<int64_t> streamsTheWeekBefore(const GameState& state, int64_t songId, CalendarWeek reported);

}  // namespace backbeat
