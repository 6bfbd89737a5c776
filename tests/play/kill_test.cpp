// The program is killed in the middle of a career, again and again. What it leaves is always a whole step: byte for
// byte what the same presses give when nobody is killed. More kills than the check makes:
//   BACKBEAT_KILLS=200 backbeat_tests --gtest_filter='Kill.*'
#include <gtest/gtest.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <map>
#include <string>
#include <vector>

#include "core/memory_store.h"
#include "core/random.h"
#include "play/golden_careers.h"
#include "shell/native/sqlite_store.h"
#include "support/program.h"

namespace backbeat {
namespace {

constexpr int killsOfTheCheck = 20;

uint64_t fingerprintOf(const std::string& key, int32_t chunk, const Value& value) {
  std::string all = key + " " + std::to_string(chunk) + " " + std::to_string(value.index()) + " ";
  if (const auto* whole = std::get_if<int64_t>(&value)) all += std::to_string(*whole);
  if (const auto* real = std::get_if<double>(&value)) all.append(reinterpret_cast<const char*>(real), sizeof *real);
  if (const auto* bytes = std::get_if<Bytes>(&value)) all += *bytes;
  return hashOf(all);
}

/// The sum over all rows, so that a write changes it by what its row was and becomes.
uint64_t fingerprintOf(const MemoryStore::Rows& rows) {
  uint64_t sum = 0;
  for (const auto& [place, value] : rows) sum += fingerprintOf(place.first, place.second, value);
  return sum;
}

/// Remembers what it held after each commit.
class RememberingStore final : public Store {
 public:
  bool commit(std::span<const Write> writes) override {
    for (const Write& write : writes) {
      const auto known = inner.rows.find({write.key, write.chunk});
      if (known != inner.rows.end()) now -= fingerprintOf(write.key, write.chunk, known->second);
      if (write.value) now += fingerprintOf(write.key, write.chunk, *write.value);
      inner.commit({&write, 1});
    }
    steps.emplace(now, steps.size());
    return true;
  }
  bool visitRows(const std::function<void(std::string_view, int32_t, const Value&)>& visit) override {
    return inner.visitRows(visit);
  }
  void quarantine(std::string_view key) override { inner.quarantine(key); }

  MemoryStore inner;
  uint64_t now = 0;  ///< the fingerprint of all rows
  std::map<uint64_t, size_t> steps = {{0, 0}};
};

/// The whole lines of a trace whose writer may have died in the middle of one.
std::string wholeLines(std::string text) {
  text.resize(text.rfind('\n') == std::string::npos ? 0 : text.rfind('\n') + 1);
  return text;
}

/// How long the program takes to play what is typed when nobody kills it, in microseconds.
int64_t wholeLife(const std::string& seed, const std::string& typed) {
  const auto begin = std::chrono::steady_clock::now();
  EXPECT_EQ(runProgram({"play", "--save", freshFile("whole"), "--seed", seed}, typed).exitCode, 0);
  const auto life = std::chrono::steady_clock::now() - begin;
  return std::chrono::duration_cast<std::chrono::microseconds>(life).count();
}

TEST(Kill, LeavesAWholeStepWheneverItComes) {
  const PlayedCareer& golden = goldenCareer("golden_year");
  const std::string seed = std::to_string(golden.events.at(0).seed);
  const std::string typed = typedFor(golden).substr(0, 60'000);  // what a pipe holds; the rest would wait
  const char* asked = std::getenv("BACKBEAT_KILLS");
  const int kills = asked ? std::atoi(asked) : killsOfTheCheck;
  const int64_t longestLife = wholeLife(seed, typed);
  SeededRandom random(static_cast<uint64_t>(getpid()));
  size_t midway = 0;
  for (int i = 0; i < kills; ++i) {
    const std::string save = freshFile("killed");
    const std::string traceFile = freshFile("killed_trace");
    const int64_t life = random.integer(0, longestLife);
    SCOPED_TRACE("killed after " + std::to_string(life) + " microseconds");
    {
      Program program({"play", "--save", save, "--seed", seed, "--trace", traceFile}, "/dev/null");
      program.type(typed);
      usleep(static_cast<useconds_t>(life));
      program.kill();
      program.wait();
    }
    RememberingStore clean;
    QuietPlatform platform;
    TraceRecorder career(clean, platform);
    size_t safe = 0;  // what was over before the last press began
    for (const TraceEvent& event : readTrace(wholeLines(contentOf(traceFile))).events) {
      safe = clean.steps.at(clean.now);
      career.play(event);
    }

    const SqliteStore::Opened left = SqliteStore::open(save);
    ASSERT_TRUE(left.store) << left.problem;
    MemoryStore::Rows rows;
    ASSERT_TRUE(left.store->visitRows([&](std::string_view key, int32_t chunk, const Value& value) {
      rows[{std::string(key), chunk}] = value;
    }));
    const auto step = clean.steps.find(fingerprintOf(rows));
    ASSERT_NE(step, clean.steps.end()) << "the save holds a part of a step";
    EXPECT_GE(step->second, safe) << "a step that was over is lost";
    midway += step->second > 0;

    MemoryStore copy;
    copy.rows = rows;
    GameState state;
    const LoadReport report = SaveFile(copy).load(state);
    EXPECT_TRUE(report.readable && report.damaged.empty() && report.lost == 0);
    EXPECT_EQ((state.yearNumber - 2023) * 52 + state.weekNumber, state.weekNumberForTracking);
  }
  EXPECT_GT(midway, 0u) << "every kill came before the first press";
}

}  // namespace
}  // namespace backbeat
