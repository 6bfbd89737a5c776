// What the lives played on one device came to, so that they can be compared. It belongs to the device: no career
// carries it, and no rule reads it.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace backbeat {

/// One artist of one career.
struct Life {
  int64_t careerId = 0;
  int64_t generation = 0;  ///< the year of the takeover; 0 for the first of the family
  std::string artistName;
};

/// One score, as a pass submits it.
struct Score {
  std::string_view leaderboard;  ///< "MOSTPOPULARSONG"
  int64_t value = 0;             ///< of this life, as the pass found it
  int64_t best = 0;              ///< what the leaderboard is told: the stored one, of all lives of the save
};

struct LifeScores {
  Life life;
  std::map<std::string, int64_t, std::less<>> scores;  ///< the greatest value of each leaderboard
};

class ScoreTable {
 public:
  static constexpr size_t mostLives = 200;

  ScoreTable() = default;
  /// The table that `text` tells; lines that tell nothing are passed over.
  explicit ScoreTable(std::string_view text);

  /// Whether anything changed: a score only rises. The life goes to the end; where there are too many, the one goes
  /// that was longest without a score.
  bool take(const Life& life, const Score& score);

  /// The one that scored last stands last.
  const std::vector<LifeScores>& lives() const { return lives_; }

  std::string text() const;

 private:
  LifeScores& rowOf(const Life& life);

  std::vector<LifeScores> lives_;
};

}  // namespace backbeat
