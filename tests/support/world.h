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
  void submitScore(std::string_view leaderboard, int64_t score) override {
    scores.emplace_back(std::string(leaderboard), score);
  }
  void requestReview() override { ++reviews; }

  std::vector<std::pair<std::string, int64_t>> scores;
  int reviews = 0;
};

struct World {
  World();

  MemoryStore store;
  ScriptedRandom random;
  SetClock clock;
  RecordingPlatform platform;
  Game game{store, random, clock, platform};
  GameState& state = game.state;

  /// Ends the transaction, and fails the test when a changed key was not saved. Call after the operation under test, in
  /// a world whose set-up was saved by `settle()`.
  void expectSaved() {
    game.saveFile.commit();
    EXPECT_TRUE(differencesFromStore(state, store).empty())
        << "not saved: " << ::testing::PrintToString(differencesFromStore(state, store));
  }
  /// Saves the whole state, as the starting point of a test.
  void settle();
};

/// A released song with sensible values; change what the test is about.
Song releasedSong(int64_t songId, const std::string& title);
/// A song in production.
Song songInProduction(int64_t songId, const std::string& title);
/// A released album.
Album releasedAlbum(int64_t albumId, const std::string& title);

}  // namespace backbeat
