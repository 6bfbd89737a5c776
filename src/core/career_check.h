// Which values a career can hold, and what is done about one that holds others: a file from outside, or a save that was
// made before the game knew better.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/game_state.h"
#include "core/record_buffer.h"

namespace backbeat {

/// What a stored number can be: at least `least`, at most `most`, and a number. Far beyond what any career comes to,
/// and far enough from where arithmetic ends.
struct Bounds {
  double least = 0;
  double most = 0;

  /// False for what is no number.
  bool hold(double value) const { return value >= least && value <= most; }
};

/// The bounds of a scalar, by its key, or of a record's field.
Bounds boundsOfScalar(std::string_view key, bool isWhole);
Bounds boundsOfField(std::string_view key, bool isWhole);

/// Every value of the career that no rule can carry, as "saveAllSongList, entry 3: totalListen is 1e+300"; at most
/// `most` of them. What the random player asks after each week.
std::vector<std::string> unbearableValues(const GameState& state, size_t most);

/// The records of a list as decoded: numbers out of bounds become the nearest that is in them, what is no number
/// becomes 0 or the nearest to it. How many there were.
size_t mendRecords(RecordBuffer& records);

/// The same for the scalars of a state; the keys of those that were mended.
std::vector<std::string> mendScalars(GameState& state);

/// What in a career from outside contradicts itself: why it cannot be played, or what was put right, each one sentence
/// for the player. Two records of one id where a rule needs one are refused; songs on an album in production are
/// counted anew; a counter behind the ids it gave out is raised.
struct Reconciled {
  std::string refusal;
  std::vector<std::string> mended;
};
Reconciled reconcile(GameState& state);

}  // namespace backbeat
