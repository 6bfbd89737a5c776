// What holds in every career, whatever was pressed.
#pragma once

#include <cstdint>
#include <set>
#include <string>

#include "core/game.h"

namespace backbeat {

/// How a career stood before a week ended.
struct WeekBefore {
  int64_t tracking = 0;
  double cash = 0;
  int64_t underContract = 0;
  std::set<int64_t> running;  ///< startups of the portfolio that had not ended
};

/// How it stands now.
WeekBefore weekBefore(const GameState& state);

/// What is wrong with the indexes of the lists, or "": each finds what looking at every row finds.
std::string historyFault(const GameState& state);

/// Which record sleeps though a turn would still look at it, or "".
std::string sleepFault(const GameState& state);

/// What is wrong with what the launch remembers of the label, or "": its sums are those of all weeks, to the last bit.
std::string labelSumsFault(Game& game);

/// What is wrong right after a week has ended, or "": with the calendar, the ledger, the cash, the fortune, the
/// startups, the songs and the week's rows.
std::string weekFault(const GameState& state, const WeekBefore& before);

}  // namespace backbeat
