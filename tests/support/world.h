// A tiny world for a test: a game with scripted chance and a store in memory.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/clock.h"
#include "core/game.h"
#include "core/memory_store.h"
#include "core/platform.h"
#include "support/scripted_random.h"

namespace backbeat {

/// A platform that remembers what it was asked for.
class RecordingPlatform final : public Platform {
 public:
  void submitScore(const Life& life, const Score& score) override {
    scores.emplace_back(std::string(score.leaderboard), score.best);
    table.take(life, score);
  }
  std::span<const LifeScores> scoredLives() const override { return table.lives(); }
  void requestReview() override { ++reviews; }

  std::vector<std::pair<std::string, int64_t>> scores;  ///< as the leaderboards are told
  ScoreTable table;
  int reviews = 0;
};

struct World {
  MemoryStore store;
  ScriptedRandom random;
  SetClock clock;
  RecordingPlatform platform;
  Game game{store, random, clock, platform};
  GameState& state = game.state;

  World();
  World(const World&) = delete;
  World& operator=(const World&) = delete;
  /// A test that has settled fails when something that changed since was not saved at its end.
  ~World();

  /// Saves the whole state, as the starting point of a test: from here on the rules have to save what they change.
  /// Called again after the test has changed something by its own hand.
  void settle();
  /// The same check in the middle of a test, before it changes the world by its own hand.
  void expectSaved();

 private:
  bool settled_ = false;
};

}  // namespace backbeat
