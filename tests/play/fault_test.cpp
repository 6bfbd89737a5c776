// A career on a store that fails: every write in its turn, once and for good.
#include <gtest/gtest.h>

#include "core/career_file.h"
#include "play/golden_careers.h"
#include "play/worlds.h"
#include "shell/native/career_transfer.h"
#include "support/failing_store.h"
#include "support/program.h"

namespace backbeat {
namespace {

constexpr size_t presses = 60;  // songs, boosts and the first weeks of the golden year

std::vector<TraceEvent> someWeeks() {
  std::vector<TraceEvent> events = goldenCareer("golden_year").events;
  events.resize(std::min(events.size(), presses));
  return events;
}

/// Where a career ends whose writes all succeed.
uint64_t undisturbedEnd(const std::vector<TraceEvent>& events) {
  MemoryStore store;
  QuietPlatform platform;
  TraceRecorder career(store, platform);
  for (const TraceEvent& event : events) career.play(event);
  return stateHash(career.session().game().state);
}

/// Plays on the store; how many writes failed. 0: the career got through.
int64_t playOn(FailingStore& store, const std::vector<TraceEvent>& events, uint64_t end) {
  QuietPlatform platform;
  TraceRecorder career(store, platform);
  for (const TraceEvent& event : events) {
    const int64_t before = store.failed();
    career.play(event);
    const bool failedLast = store.failed() > before;
    EXPECT_LE(career.session().game().saveFile.failing(), failedLast) << "it says so though the last write succeeded";
  }
  EXPECT_EQ(stateHash(career.session().game().state), end) << "the game goes on as if nothing were";
  if (!differencesFromStore(career.session().game().state, store).empty()) {
    EXPECT_TRUE(career.session().game().saveFile.failing()) << "something is not saved, and it does not say so";
  }
  store.mend();
  career.play(actEvent(0, "nobody", {"", ""}));
  EXPECT_FALSE(career.session().game().saveFile.failing());
  EXPECT_EQ(differencesFromStore(career.session().game().state, store), std::vector<std::string>());
  return store.failed();
}

TEST(Fault, ACareerSurvivesTheFailureOfAnyOfItsWrites) {
  const std::vector<TraceEvent> events = someWeeks();
  const uint64_t end = undisturbedEnd(events);
  for (const int64_t howMany : {int64_t{1}, FailingStore::forEver}) {
    for (int64_t n = 1;; ++n) {
      SCOPED_TRACE("write " + std::to_string(n) + (howMany == 1 ? " fails" : " and all after it fail"));
      FailingStore store(n, howMany);
      if (playOn(store, events, end) == 0) {
        EXPECT_GT(n, 40) << "the career wrote hardly anything";
        break;
      }
      if (HasFailure()) return;
    }
  }
}

TEST(Fault, AnImportThatFailsAnywhereChangesNothingAndSaysSo) {
  GameState other;
  other.myArtistsName = "Somebody else";
  const std::string file = freshFile("import.plist");
  writeFile(file, exportCareer(other));
  for (int64_t n = 1;; ++n) {
    FailingStore store(n, 1);
    settleInto(store.inner, namedWorld("rich"));
    const MemoryStore::Rows before = store.inner.rows;
    ImportedCareer career = readCareer(file, Date());
    const std::string problem = putInPlace(career, store, Date(), false).problem;
    if (store.failed() == 0) {
      EXPECT_EQ(problem, "");
      EXPECT_GT(n, 2) << "the copy and the career are two writes";
      return;
    }
    EXPECT_NE(problem, "") << n;
    EXPECT_EQ(store.inner.rows, before) << n;
  }
}

/// The career in `save` as the console shows it to somebody who presses a little and leaves.
ProgramRun playALittle(const std::string& save) { return runProgram({"play", "--save", save}, "life\nmusic\nquit\n"); }

TEST(Fault, AnUnreadableSaveIsToldAndLeftAsItIs) {
  const std::string save = freshFile("unreadable.save");
  ASSERT_EQ(playALittle(save).exitCode, 0);
  std::string bytes = contentOf(save);
  constexpr size_t page = 4096;
  ASSERT_GT(bytes.size(), 6 * page);
  size_t told = 0;
  for (size_t at = page; at < bytes.size(); at += page) {
    std::string damaged = bytes;
    damaged.replace(at, page, page, '\x5A');
    freshFile("unreadable.save");
    writeFile(save, damaged);
    const ProgramRun run = playALittle(save);
    EXPECT_TRUE(run.exitCode == 0 || run.exitCode == 1) << "page " << at / page << ": " << run.output;
    if (run.output.find("could not be read") == std::string::npos) continue;
    ++told;
    EXPECT_EQ(contentOf(save).substr(page), damaged.substr(page)) << "the rest may still be mended";
    EXPECT_EQ(run.output.find("kept up to here"), std::string::npos);
  }
  EXPECT_GT(told, 0u);
}

}  // namespace
}  // namespace backbeat
