// What a week meant, told by the rooms for its report: first times, best times, and what is over. Nothing of it is
// kept: it follows from the state and from how the career stood before the turn (`Turn::before`), which an open report
// remembers over a launch.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "core/game.h"
#include "core/view.h"

namespace backbeat {

/// One piece of news.
struct News {
  enum class Kind {
    first,    ///< it never was before: told only where the state's own history says so
    best,     ///< it beats all that came before
    reached,  ///< it came about, perhaps not for the first time
    ended,    ///< it is over, or lost
  } kind = Kind::reached;
  /// The greatest stands first; from `headlineRank` on it can lead the report.
  int64_t rank = 0;
  std::string key = {};  ///< what it is about, without the words: "listeners 1000", "gold song"
  Picture picture = {};
  std::string kicker = {};    ///< the small line above: "Your first gold song"
  std::string headline = {};  ///< the news itself, one sentence without its full stop
  std::string text = {};
  std::string figure = {};  ///< the one number of it: "9"
  std::string stamp = {};   ///< across a ticket: "SOLD OUT"
  Tone tone = Tone::good;   ///< good is celebrated, bad is mourned
};

inline constexpr int64_t headlineRank = 300;

/// All news of the turn that has run, greatest first; none before a turn has run in this launch.
std::vector<News> newsOf(const Game& game);

/// The highest power of ten from 10 on that lies above `before` and not above `now`; 0 when none was passed.
int64_t passedPowerOfTen(int64_t before, int64_t now);

/// Whether the lists hold all that this artist ever did: clearing up takes what is twenty years old.
bool historyIsWhole(const GameState& state);

/// The headline of a report, and any further news under it.
Poster posterOf(const News& news);
Row rowOf(const News& news);

}  // namespace backbeat
