// Another career in the place of one, again and again, and killed in the middle of it. More kills than the check makes:
//   BACKBEAT_KILLS=200 backbeat_tests --gtest_filter='Exchange.*'
#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <iostream>
#include <set>

#include "core/career_file.h"
#include "core/memory_store.h"
#include "core/random.h"
#include "play/worlds.h"
#include "shell/native/career_transfer.h"
#include "shell/native/copies_command.h"
#include "shell/native/sqlite_store.h"
#include "shell/session.h"
#include "support/program.h"

namespace backbeat {
namespace {

constexpr int killsOfTheCheck = 12;
constexpr Date aDay{1'764'000'000};

GameState loaded(Store& store) {
  GameState state;
  const LoadReport report = SaveFile(store).load(state);
  EXPECT_TRUE(report.readable && report.damaged.empty() && report.lost == 0);
  return state;
}

/// The careers that are kept aside, by their fingerprints.
std::set<std::string> keptIn(Store& store) {
  std::set<std::string> contents;
  for (const Snapshot& copy : snapshotsOf(store)) contents.insert(copy.content);
  return contents;
}

std::string fingerprintOf(const GameState& state) {
  MemoryStore nowhere;
  EXPECT_TRUE(keepSnapshot(nowhere, SnapshotKind::import, state, aDay));
  return snapshotsOf(nowhere).front().content;
}

void endAWeek(Store& store) {
  QuietPlatform platform;
  Session session(store, platform, 7, aDay);
  session.press(aDay, "nav", {"endTheWeekButton", ""});
}

TEST(Exchange, AnyNumberOfImportsAndWaysBackLosesNothingUnasked) {
  MemoryStore store;
  settleInto(store, namedWorld("mid-career"));
  SeededRandom random(11);
  int refused = 0;
  for (int step = 0; step < 60; ++step) {
    SCOPED_TRACE(step);
    const GameState today = loaded(store);
    const std::set<std::string> before = keptIn(store);
    const bool force = random.integer(0, 3) == 0;
    std::set<std::string> named;  // what the question says that goes
    bool done = false;
    if (random.integer(0, 1) == 0) {
      ImportedCareer career;
      career.state = today;
      career.state->totalFans = random.integer(0, 3);
      for (const Snapshot& copy : planSnapshot(store, SnapshotKind::import, today).goes) named.insert(copy.content);
      done = putInPlace(career, store, aDay, force).problem.empty();
    } else if (const auto copies = snapshotsOf(store); !copies.empty()) {
      const Snapshot& copy = copies[static_cast<size_t>(random.integer(0, static_cast<int64_t>(copies.size()) - 1))];
      for (const Snapshot& other : planSnapshot(store, SnapshotKind::restore, today, copy.name).goes) {
        named.insert(other.content);
      }
      done = goBackTo(store, copy, aDay, force).done;
      if (done) EXPECT_EQ(fingerprintOf(loaded(store)), copy.content);
    }
    std::set<std::string> after = keptIn(store);
    if (done) EXPECT_TRUE(after.contains(fingerprintOf(today))) << "what was left is not kept";
    for (const std::string& content : before)
      EXPECT_TRUE(after.contains(content) || (force && named.contains(content)));
    if (!done) EXPECT_EQ(careerHash(loaded(store)), careerHash(today));
    refused += !done && !named.empty();
    if (random.integer(0, 2) == 0) endAWeek(store);
  }
  EXPECT_GT(refused, 0) << "no copy ever had to go";
}

struct Left {
  MemoryStore::Rows rows;
  std::set<std::string> copies;
};

Left leftIn(const std::string& save) {
  const SqliteStore::Opened opened = SqliteStore::open(save);
  EXPECT_TRUE(opened.store) << opened.problem;
  Left left;
  if (!opened.store) return left;
  opened.store->visitRows([&](std::string_view key, int32_t chunk, const Value& value) {
    left.rows[{std::string(key), chunk}] = value;
  });
  left.copies = keptIn(*opened.store);
  return left;
}

/// Runs a command on the save until it ends or is killed after `life` microseconds, and tells how long it lived.
int64_t runFor(std::vector<std::string> words, const std::string& save, std::optional<int64_t> life) {
  words.insert(words.end(), {"--save", save, "--force"});
  const auto begin = std::chrono::steady_clock::now();
  Program program(words, "/dev/null");
  if (life) {
    usleep(static_cast<useconds_t>(*life));
    program.kill();
  }
  program.wait();
  return std::chrono::duration_cast<std::chrono::microseconds>(std::chrono::steady_clock::now() - begin).count();
}

TEST(Exchange, AKillLeavesTheOldCareerOrTheNewOneAndTheOldOneKept) {
  const std::string whole = freshFile("exchange_whole");
  std::string career;
  {
    const SqliteStore::Opened opened = SqliteStore::open(whole);
    settleInto(*opened.store, namedWorld("mid-career"));
    EXPECT_TRUE(keepSnapshot(*opened.store, SnapshotKind::newYear, loaded(*opened.store), aDay));
    endAWeek(*opened.store);
    career = fingerprintOf(loaded(*opened.store));
  }
  const std::string file = freshFile("exchange.plist");
  MemoryStore other;
  settleInto(other, namedWorld("rich"));
  writeFile(file, exportCareer(loaded(other)));
  const Left before = leftIn(whole);
  const Bytes bytes = contentOf(whole);
  const auto freshSave = [&] {
    const std::string save = freshFile("exchange_killed");
    writeFile(save, bytes);
    return save;
  };
  const char* asked = std::getenv("BACKBEAT_KILLS");
  const int kills = asked ? std::atoi(asked) : killsOfTheCheck;
  SeededRandom random(static_cast<uint64_t>(getpid()));
  const std::vector<std::vector<std::string>> commands = {
      {"import", file}, {"copies", "restore", "2"}, {"copies", "delete", "1"}};
  for (const auto& command : commands) {
    const std::string undisturbed = freshSave();
    const int64_t life = runFor(command, undisturbed, {});
    const Left after = leftIn(undisturbed);
    const bool deletes = command[1] == "delete";
    EXPECT_NE(deletes ? after.copies.size() : 0, before.copies.size());
    EXPECT_EQ(after.rows == before.rows, deletes);
    for (int i = 0; i < kills; ++i) {
      const int64_t moment = random.integer(0, life);
      SCOPED_TRACE(command[0] + " " + command[1] + " killed after " + std::to_string(moment) + " microseconds");
      const std::string save = freshSave();
      runFor(command, save, moment);
      const Left left = leftIn(save);
      EXPECT_TRUE(left.rows == before.rows || left.rows == after.rows) << "the save holds a part of each";
      EXPECT_TRUE(left.rows == before.rows || left.copies.contains(career)) << "what was there is not kept";
      EXPECT_TRUE(left.copies == after.copies ||
                  std::includes(left.copies.begin(), left.copies.end(), before.copies.begin(), before.copies.end()))
          << "a copy is gone";
    }
  }
  std::cout << kills << " kills in an import, a way back and a deletion each\n";
}

}  // namespace
}  // namespace backbeat
