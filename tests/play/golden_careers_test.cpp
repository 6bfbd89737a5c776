// Golden careers end the same everywhere. When the rules or the screens changed on purpose, play it anew and look at
// what changed before you commit it:
//   BACKBEAT_REGOLD=1 backbeat_tests --gtest_filter='Golden*'
#include "play/golden_careers.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <sstream>
#include <utility>

#include "core/memory_store.h"
#include "shell/native/console_player.h"
#include "support/program.h"

namespace backbeat {
namespace {

std::string hashAfter(const Trace& trace) {
  MemoryStore store;
  QuietPlatform platform;
  TraceRecorder career(store, platform);
  for (const TraceEvent& event : trace.events) career.play(event);
  return hashText(stateHash(career.session().game().state));
}

/// Plays the careers anew and keeps them, when that is asked for.
void regoldWhenAsked() {
  static bool done = false;
  if (!std::getenv("BACKBEAT_REGOLD") || std::exchange(done, true)) return;
  std::string hashes;
  for (const GoldenCareer& career : goldenCareers()) {
    std::vector<std::string> problems;
    std::string text;
    for (const std::string& line : career.play(problems)) text += line + "\n";
    ASSERT_EQ(problems, std::vector<std::string>());
    writeFile(goldenTraceFile(career.name), text);
    hashes += std::string(career.name) + " " + hashAfter(readTrace(text)) + "\n";
  }
  writeFile(goldenHashFile(), hashes);
}

Trace goldenTrace(const std::string& name) {
  regoldWhenAsked();
  return readTrace(contentOf(goldenTraceFile(name)));
}

std::string goldenHash(const std::string& wanted) {
  std::istringstream words(contentOf(goldenHashFile()));
  std::string name;
  std::string hash;
  while (words >> name >> hash) {
    if (name == wanted) return hash;
  }
  return "";
}

TEST(GoldenCareers, EndTheSameFromTheirTraces) {
  for (const GoldenCareer& career : goldenCareers()) {
    const Trace trace = goldenTrace(career.name);
    ASSERT_EQ(trace.problem, "");
    EXPECT_EQ(hashAfter(trace), goldenHash(career.name)) << career.name;
  }
}

TEST(GoldenYear, EndsTheSameWhenTypedIntoTheConsole) {
  const Trace trace = goldenTrace("golden_year");
  std::istringstream typed(typedFor(trace));
  std::ostringstream printed;
  MemoryStore store;
  QuietPlatform platform;
  TraceRecorder career(store, platform);
  career.play(trace.events.at(0));
  size_t next = 1;
  const auto clock = [&] { return trace.events[std::min(next++, trace.events.size() - 1)].unixMilliseconds; };
  ConsolePlayer(career, store, typed, printed, {}, clock).run();
  EXPECT_EQ(hashText(stateHash(career.session().game().state)), goldenHash("golden_year"));
  EXPECT_EQ(printed.str().find('\x1b'), std::string::npos) << "no colours over a pipe";
}

TEST(GoldenYear, EndsTheSameInTheRealProgram) {
  const ProgramRun run = runProgram({"replay", goldenTraceFile("golden_year")});
  EXPECT_EQ(run.exitCode, 0);
  EXPECT_EQ(run.output, goldenHash("golden_year") + "\n");
}

TEST(GoldenYear, HoldsAWholeYearOfWork) {
  const Trace trace = goldenTrace("golden_year");
  MemoryStore store;
  QuietPlatform platform;
  TraceRecorder career(store, platform);
  for (const TraceEvent& event : trace.events) career.play(event);
  const GameState& state = career.session().game().state;
  EXPECT_EQ(state.weekNumberForTracking, 53);
  EXPECT_EQ(state.yearNumber, 2024);
  EXPECT_GT(state.saveAllSongList.size(), 10u);
  EXPECT_GT(state.saveAllWeeklySongListens.size(), 50u);
  EXPECT_GT(state.saveAllChirpList.size(), 5u);
}

TEST(GoldenDecade, HoldsACareerWithAlbumsAndALabel) {
  const Trace trace = goldenTrace("golden_decade");
  MemoryStore store;
  QuietPlatform platform;
  TraceRecorder career(store, platform);
  for (const TraceEvent& event : trace.events) career.play(event);
  const GameState& state = career.session().game().state;
  EXPECT_EQ(state.yearNumber, 2033);
  EXPECT_GT(state.totalFans, 35'000);
  EXPECT_TRUE(std::any_of(state.saveAllAlbumList.begin(), state.saveAllAlbumList.end(),
                          [](const Album& album) { return album.isReleased && album.albumsSold > 0; }));
  EXPECT_TRUE(std::any_of(trace.events.begin(), trace.events.end(),
                          [](const TraceEvent& event) { return event.action.id == "signContract"; }));
  EXPECT_TRUE(differencesFromStore(state, store).empty());
}

}  // namespace
}  // namespace backbeat
