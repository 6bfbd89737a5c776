// A platform that keeps the scores of the lives played on its device, and leaves it to the device where.
#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "core/platform.h"

namespace backbeat {

class ScoreKeeper : public Platform {
 public:
  /// Takes what the device kept of earlier launches.
  void hold(std::string_view text) { table_ = ScoreTable(text); }

  /// The whole table, where it changed since the last call; else "".
  std::string takeChanges() { return std::exchange(changed_, false) ? table_.text() : std::string(); }

  void submitScore(const Life& life, const Score& score) override { changed_ = table_.take(life, score) || changed_; }
  std::span<const LifeScores> scoredLives() const override { return table_.lives(); }
  void requestReview() override {}

 private:
  ScoreTable table_;
  bool changed_ = false;
};

}  // namespace backbeat
