// The nine high scores: how each is found in a life, where the best is kept, and who holds it.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "core/game.h"

namespace backbeat {

struct HighScore {
  std::string_view leaderboard;  ///< "MOSTPOPULARSONG"
  std::string_view title;
  std::string_view icon;
  int64_t GameState::*best;                       ///< outlives every artist and only rises
  std::optional<int64_t> (*value)(Game& game);    ///< of this life; nothing while there is none to tell
  std::string (*holder)(const GameState& state);  ///< whose the value of this life is
  bool dollars = false;
  enum class Told {
    best,        ///< leaderboards are told the best
    asItStands,  ///< the value, up or down; its best is only remembered
    byReport,    ///< the best, which another screen raises
  } told = Told::best;
};

/// In the order in which they are submitted.
std::span<const HighScore> highScores();

}  // namespace backbeat
