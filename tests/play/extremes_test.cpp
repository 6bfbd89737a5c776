// A career from outside may hold any number that its bounds allow: no such number stops the game. One extreme value at
// a time, in every scalar and in every field of every record, and weeks played with it. For longer:
//   BACKBEAT_EXTREME_WEEKS=60 backbeat_tests --gtest_filter='Extremes.*'
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cmath>
#include <cstdlib>
#include <limits>
#include <set>
#include <string>

#include "core/career_check.h"
#include "core/career_file.h"
#include "core/memory_store.h"
#include "music/builders.h"
#include "play/worlds.h"
#include "shell/session.h"
#include "video/builders.h"
#include "wealth/builders.h"

namespace backbeat {
namespace {

constexpr int64_t weeksOfTheCheck = 10;
constexpr Date aDay{1'672'660'800};

GameState careerIn(std::string_view world) {
  MemoryStore store;
  settleInto(store, namedWorld(world));
  GameState state;
  SaveFile(store).load(state);
  return state;
}

const GameState& careerOfEverything() {
  static const GameState career = [] {
    GameState state = careerIn("mid-career");
    for (const double marketing : {10.0, 0.0}) {
      MusicVideo video = videoOf(state, firstWorldSong + 3);
      video.marketingScore = marketing;
      video.totalViews = 9'000'000;
      addVideo(state, video, 5);
    }
    for (const int64_t round : {0, 3}) {  // long since looked at
      Venture venture = stakeIn(state, round + 1, round);
      venture.weekSinceUpdate -= 40;
      state.saveAllVentureInvestments.append(venture);
    }
    return state;
  }();
  return career;
}

/// Presses what leads to the next week, whatever stands in the way.
void endWeek(Session& session) {
  const GameState& state = session.game().state;
  const int64_t week = state.weekNumberForTracking;
  for (int tries = 0; tries < 50; ++tries) {
    const Shown shown = session.shown();
    if (shown.alert) {
      session.press(aDay, "alert", {std::to_string(shown.alert->key), "0"});
    } else if (shown.modal) {
      session.press(aDay, std::to_string(shown.key), {"closeButton", ""});
    } else if (state.weekNumberForTracking != week) {
      return;
    } else {
      session.press(aDay, "nav", {"endTheWeekButton", ""});
    }
  }
}

/// Plays the career in a process of its own; whether it was still going at the end.
bool survives(GameState state, int64_t weeks) {
  const pid_t child = fork();
  if (child == 0) {
    for (const int signal : {SIGILL, SIGTRAP, SIGABRT, SIGSEGV}) ::signal(signal, SIG_DFL);
    MemoryStore store;
    store.replaceAll(rowsOf(state));
    QuietPlatform platform;
    Session session(store, platform, 7, aDay);
    for (int64_t week = 0; week < weeks; ++week) endWeek(session);
    _exit(session.game().saveFile.keeping() ? 0 : 1);
  }
  int status = 0;
  waitpid(child, &status, 0);
  return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

int64_t weeksToPlay() {
  const char* asked = std::getenv("BACKBEAT_EXTREME_WEEKS");
  return asked ? std::atoll(asked) : weeksOfTheCheck;
}

TEST(Extremes, NoScalarThatItsBoundsAllowStopsTheGame) {
  for (const Scalar& scalar : scalars) {
    std::visit(
        [&](auto member) {
          using Value = std::remove_cvref_t<decltype(careerOfEverything().*member)>;
          if constexpr (std::is_same_v<Value, int64_t> || std::is_same_v<Value, double>) {
            const Bounds bounds = boundsOfScalar(scalar.key, std::is_same_v<Value, int64_t>);
            for (const double value : {bounds.least, bounds.most}) {
              GameState state = careerOfEverything();
              state.*member = static_cast<Value>(value);
              EXPECT_TRUE(survives(state, weeksToPlay())) << scalar.key << " is " << value;
            }
          }
        },
        scalar.member);
  }
}

/// Puts the value into the field of the list's first record, and of its last.
void put(const ChunkedList& list, const FieldType& field, double value) {
  const std::vector<const void*> records = list.records();
  for (const void* record : {records.front(), records.back()}) {
    char* at = static_cast<char*>(const_cast<void*>(record)) + field.offset;
    if (field.type.kind == ValueType::Kind::integer) {
      *reinterpret_cast<int64_t*>(at) = static_cast<int64_t>(value);
    } else {
      *reinterpret_cast<double*>(at) = value;
    }
  }
}

void tryFieldsOf(std::string_view key, const ChunkedList& list, const GameState& career) {
  for (const FieldType& field : list.type().fields) {
    const bool isWhole = field.type.kind == ValueType::Kind::integer;
    if (!isWhole && field.type.kind != ValueType::Kind::real) continue;
    const Bounds bounds = boundsOfField(field.key, isWhole);
    for (const double value : {bounds.least, bounds.most}) {
      GameState state = career;
      for (const auto& [name, changed] : listsOf(state)) {
        if (name == key) put(changed, field, value);
      }
      EXPECT_TRUE(survives(state, weeksToPlay())) << key << ", " << field.key << " is " << value;
    }
  }
}

TEST(Extremes, NoFieldThatItsBoundsAllowStopsTheGame) {
  std::set<std::string> tried;
  // Each list in the first career that has it.
  for (const GameState& career : {careerOfEverything(), careerIn("shop")}) {
    for (const auto& [key, list] : listsOf(career)) {
      if (list.size() > 0 && tried.insert(std::string(key)).second) tryFieldsOf(key, list, career);
    }
  }
}

TEST(Extremes, WhatNoRuleCanCarryIsRefusedByName) {
  const auto refusalOf = [](const auto& change) {
    GameState state = careerOfEverything();
    change(state);
    return importCareer(exportCareer(state)).problem;
  };
  const double nan = std::numeric_limits<double>::quiet_NaN();
  const auto changeSong = [](auto change) {
    return [change](GameState& state) { state.saveAllSongList.update(1, change); };
  };
  EXPECT_EQ(refusalOf([](GameState&) {}), "");
  EXPECT_EQ(refusalOf([](GameState& state) { state.totalFans = INT64_MAX; }),
            "This file cannot be used: totalFans is 9223372036854775808.000000.");
  EXPECT_EQ(refusalOf([](GameState& state) { state.weekNumber = 53; }), "This file cannot be used: weekNumber is 53.");
  EXPECT_EQ(refusalOf([&](GameState& state) { state.totalCashAvailable = nan; }),
            "This file cannot be used: totalCashAvailable is not a number.");
  EXPECT_EQ(refusalOf(changeSong([&](Song& song) { song.viralityScore = nan; })),
            "This file cannot be used: saveAllSongList, entry 2: viralityScore is not a number.");
  EXPECT_EQ(refusalOf([&](GameState& state) {
              state.reportNumbers.append({"week before", 2, {1, nan}});
            }),
            "This file cannot be used: reportNumbers, entry 1: figures is not a number.");
  EXPECT_EQ(refusalOf([](GameState& state) { state.myArtistsName = std::string("Zo\0e", 4); }),
            "This file cannot be used: myArtistsName holds a character that is none (NUL).");
  EXPECT_EQ(refusalOf(changeSong([](Song& song) { song.features = {std::string(1, '\0')}; })),
            "This file cannot be used: saveAllSongList, entry 2: features holds a character that is none (NUL).");
  const int64_t taken = careerOfEverything().saveAllSongList[0].songId;
  EXPECT_EQ(refusalOf(changeSong([&](Song& song) { song.songId = taken; })),
            "This file cannot be used. Two of the songs have the id " + std::to_string(taken) + ".");
}

TEST(Extremes, WhatContradictsItselfIsPutRightAndTold) {
  GameState state = careerOfEverything();
  const int64_t lastSong = state.songId;
  state.songId = 3;
  const size_t coming = state.saveAllAlbumList.find([](const Album& album) { return !album.isReleased; });
  const int64_t songs = state.saveAllAlbumList[coming].songCount;
  state.saveAllAlbumList.update(coming, [](Album& album) { album.songCount -= 1; });
  const ImportedCareer career = importCareer(exportCareer(state));
  ASSERT_TRUE(career.state) << career.problem;
  EXPECT_EQ(career.mended.size(), 2u);
  EXPECT_EQ(career.state->songId, lastSong);
  EXPECT_EQ(career.state->saveAllAlbumList[coming].songCount, songs);
}

}  // namespace
}  // namespace backbeat
