// A career at full stretch: a song released every week and rated so that about eighty stream at a time, an album of ten
// of them every ten weeks, a post a week, and listeners enough to fill the chart. Besides, a video and a guest verse a
// month, two tours of twelve venues a year, and a dozen products on the shelf, three of them new each season.
#pragma once

#include "core/clock.h"
#include "core/game.h"
#include "core/platform.h"

namespace backbeat {

/// A game with everything that it is given.
struct LoneGame {
  explicit LoneGame(Store& store) : game(store, random, clock, platform) {}

  SeededRandom random{2023};
  SetClock clock;
  QuietPlatform platform;
  Game game;
};

/// What somebody does between two weeks.
using LiveWeek = void (*)(Game& game);

/// The artist of this career.
void liveWeek(Game& game);

/// END THE WEEK until the report is closed, views not built.
void playWeek(Game& game);

/// The state after so many weeks of both.
GameState heavyCareer(int64_t weeks, LiveWeek live);

/// The number of records in all lists, and of songs that still stream.
size_t recordsIn(const GameState& state);
size_t songsStreaming(const GameState& state);

}  // namespace backbeat
