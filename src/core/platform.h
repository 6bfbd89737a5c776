// What the device offers beyond the game: leaderboards and the request for a rating. Nothing of it changes a rule.
#pragma once

#include <span>

#include "core/score_table.h"

namespace backbeat {

class Platform {
 public:
  virtual ~Platform() = default;
  virtual void submitScore(const Life& life, const Score& score) = 0;
  /// What the lives played on this device came to, as far as it keeps that.
  virtual std::span<const LifeScores> scoredLives() const { return {}; }
  virtual void requestReview() = 0;
};

/// A device without either.
class QuietPlatform final : public Platform {
 public:
  void submitScore(const Life&, const Score&) override {}
  void requestReview() override {}
};

}  // namespace backbeat
