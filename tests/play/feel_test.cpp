// What a player feels over many careers: how often each chance comes, how long a song is carried, how listeners grow.
// Bounds are tight enough that a rule gone wrong shows.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <vector>

#include "core/clock.h"
#include "core/game.h"
#include "core/platform.h"
#include "music/builders.h"
#include "music/streaming.h"
#include "support/world.h"
#include "turn/week_cycle.h"
#include "turn/weekly_events.h"

namespace backbeat {
namespace {

/// A career that keeps nothing, by seed.
struct Career {
  explicit Career(uint64_t seed) : random(seed) {}

  void endWeek() {
    runWeekCycle(game, [] {});
  }
  void release(double rating, double virality) {
    ++state.songId;
    Song song = releasedSong(state.songId, "Song " + std::to_string(state.songId));
    song.productionRating = rating;
    song.viralityScore = virality;
    song.releaseWeek = state.weekNumberForTracking;
    song.releaseYear = state.yearNumber;
    state.saveAllSongList.append(std::move(song));
  }
  void releaseAlbum() {
    ++state.albumId;
    Album album = releasedAlbum(state.albumId, "Album " + std::to_string(state.albumId));
    album.releaseWeek = state.weekNumberForTracking;
    state.saveAllAlbumList.append(std::move(album));
  }

  NullStore store;
  SeededRandom random;
  SetClock clock;
  QuietPlatform platform;
  Game game{store, random, clock, platform};
  GameState& state = game.state;
};

constexpr uint64_t careers = 60;

template <class Measure>
int64_t medianOf(Measure&& measure) {
  std::vector<int64_t> values;
  for (uint64_t seed = 1; seed <= careers; ++seed) values.push_back(measure(seed));
  std::nth_element(values.begin(), values.begin() + careers / 2, values.end());
  return values[careers / 2];
}

TEST(Feel, ChancesComeAsOftenAsToldAndEachAsOftenAsTheOthers) {
  Career career(4);
  std::array<int, 16> times = {};
  constexpr int weeks = 30'000;
  int shown = 0;
  for (int week = 0; week < weeks; ++week) {
    WeeklyEvents events;
    drawWeeklyEventCount(career.game, events);
    for (const EventButton* button : {&events.buttonEvent1, &events.buttonEvent2, &events.buttonEvent3}) {
      if (button->id == 0) continue;
      ++shown;
      ++times[static_cast<size_t>(button->id)];
    }
  }
  EXPECT_NEAR(static_cast<double>(shown) / weeks, 130.0 / 101, 0.02);
  for (size_t id = 1; id <= 15; ++id) EXPECT_NEAR(static_cast<double>(times[id]) / shown, 1.0 / 15, 0.005) << id;
}

TEST(Feel, ASongIsCarriedForSomeWeeksThenFades) {
  const auto weeksOfLaunch = [](double rating) {
    return medianOf([&](uint64_t seed) {
      Career career(seed);
      career.release(rating, 10);
      int64_t weeks = 0;
      while (career.state.saveAllSongList[0].marketingScore > 0 && weeks < 200) {
        career.endWeek();
        ++weeks;
      }
      return weeks;
    });
  };
  EXPECT_NEAR(static_cast<double>(weeksOfLaunch(20)), 5, 1);
  EXPECT_NEAR(static_cast<double>(weeksOfLaunch(60)), 7, 2);
  EXPECT_GT(weeksOfLaunch(95), 10) << "a great song holds its marketing for long";
}

TEST(Feel, ListenersGrowWithTheWork) {
  const auto afterTwoYears = [](int64_t weeksBetweenSongs, double rating, bool albums) {
    return medianOf([&](uint64_t seed) {
      Career career(seed);
      for (int64_t week = 0; week < 104; ++week) {
        if (week % weeksBetweenSongs == 0) career.release(rating, 10);
        if (albums && week % 26 == 0) career.releaseAlbum();
        career.endWeek();
      }
      return career.state.totalFans;
    });
  };
  const int64_t casual = afterTwoYears(8, 25, false);
  const int64_t keen = afterTwoYears(3, 50, true);
  // Two and a half times the luck of a beginner, three or four times a month: a few hundred.
  EXPECT_NEAR(static_cast<double>(casual), 420, 60);
  // Past a thousand listeners luck grows with the fame, and an album that is out doubles it.
  EXPECT_NEAR(static_cast<double>(keen), 9500, 500);
}

}  // namespace
}  // namespace backbeat
