// Simulated careers: the same wherever they are cut, replayable, and never stuck.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "core/memory_store.h"
#include "label/departments.h"
#include "play/worlds.h"
#include "shell/simulate/simulation_summary.h"
#include "support/program.h"

namespace backbeat {
namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;

/// The rows of `careers` careers of a year from `seed` on, played `jobs` at a time.
std::vector<std::string> rowsOfCareers(uint64_t seed, int64_t careers, int64_t jobs) {
  SimulationPlan plan;
  plan.strategy = strategyNamed("keen");
  plan.firstSeed = seed;
  plan.careers = careers;
  plan.years = 1;
  plan.jobs = jobs;
  std::vector<std::string> rows;
  simulate(plan, [&](const Career& career) { rows.push_back(csvRows(plan, career)); });
  return rows;
}

TEST(Simulation, ARowDependsNeitherOnTheCareersBesideItNorOnTheJobs) {
  const std::vector<std::string> together = rowsOfCareers(7, 4, 3);
  ASSERT_EQ(together.size(), 4u);
  EXPECT_EQ(rowsOfCareers(7, 4, 1), together);
  EXPECT_EQ(rowsOfCareers(9, 1, 1).front(), together[2]);
  EXPECT_NE(together[0].substr(together[0].find(",1,")), together[1].substr(together[1].find(",1,")));
}

TEST(Simulation, NoStrategyIsEverStuckAndItsTraceEndsWhereItEnded) {
  for (const StrategyEntry& strategy : strategies()) {
    SCOPED_TRACE("backbeat simulate --careers 1 --years 8 --seed 40 --trace FILE --strategy " +
                 std::string(strategy.name));
    const Career career = playCareer(strategy, 40, 8, nullptr);
    EXPECT_THAT(career.problems, IsEmpty());
    std::string text;
    for (const std::string& line : career.trace) text += line + "\n";
    MemoryStore store;
    QuietPlatform platform;
    TraceRecorder replayed(store, platform);
    for (const TraceEvent& event : readTrace(text).events) replayed.play(event);
    EXPECT_EQ(hashText(stateHash(replayed.session().game().state)), career.hash);
    EXPECT_EQ(replayed.session().game().state.weekNumberForTracking, 8 * 52 + 1);
    EXPECT_FALSE(replayed.session().shown().alert);
  }
}

TEST(Simulation, AFounderRunsTheLabelThatItCanPay) {
  MemoryStore store;
  settleInto(store, namedWorld("before the label"));
  std::vector<std::string> problems;
  Player player(store, timeIn(store), 3, problems);
  const std::unique_ptr<Strategy> founder = strategyNamed("founder")->make();
  for (int64_t week = 1; week <= 5 * 52; ++week) founder->playWeek(player, week);
  EXPECT_THAT(problems, IsEmpty());
  EXPECT_EQ(player.state().isLabelLaunched, 1);
  EXPECT_GE(player.state().saveAllEmployeeList.size(), 7u);
  EXPECT_GT(activeArtists(player.state()), 3);
  EXPECT_GT(player.state().saveAllSignedArtistAlbumList.size(), 3u);
}

TEST(Simulation, AWholeLifeHasEverythingAndIsHandedOnTwice) {
  const Career career = playCareer(*strategyNamed("lifelong"), 2, 56, nullptr);
  EXPECT_THAT(career.problems, IsEmpty());
  const auto most = [&](std::string_view column) {
    const auto found = std::find_if(columns.begin(), columns.end(), [&](const Column& c) { return c.name == column; });
    double greatest = 0;
    for (const CareerYear& year : career.years) greatest = std::max(greatest, found->of(year));
    return greatest;
  };
  EXPECT_EQ(most("generation"), 3);
  EXPECT_EQ(most("love"), 3);
  EXPECT_EQ(most("children"), 2);
  for (const char* had : {"own_label", "artists", "homes", "garage", "ventures", "awards", "shows", "videos"}) {
    EXPECT_GT(most(had), 0) << had;
  }
}

TEST(Simulation, HarderWorkFindsMoreListeners) {
  int64_t before = -1;
  for (const char* name : {"idle", "casual", "keen"}) {
    const int64_t listeners = playCareer(*strategyNamed(name), 1, 3, nullptr).years.back().listeners;
    EXPECT_GT(listeners, before) << name;
    before = listeners;
  }
}

TEST(Simulation, TheMiddleAndTheEdgesOfValues) {
  const Spread spread = spreadOf({5, 1, 4, 2, 3, 0, 10, 8, 9, 7, 6});
  EXPECT_EQ(spread.low, 1);
  EXPECT_EQ(spread.median, 5);
  EXPECT_EQ(spread.high, 9);
  EXPECT_EQ(spreadOf({1, 2}).median, 1.5);
  EXPECT_EQ(spreadOf({}).median, 0);
}

TEST(Simulation, TheProgramWritesATableThatOthersReadAndATraceThatItReplays) {
  const std::string csv = freshFile("simulated_csv");
  const std::string trace = freshFile("simulated_trace");
  const ProgramRun run = runProgram({"simulate", "--strategy", "casual", "--careers", "2", "--years", "1", "--seed",
                                     "18446744073709551614", "--csv", csv, "--trace", trace, "--json", "--profile"});
  EXPECT_EQ(run.exitCode, 0) << run.output;
  EXPECT_THAT(run.output, HasSubstr(R"({"strategy":"casual","firstSeed":"18446744073709551614","careers":2,)"));
  EXPECT_THAT(run.output, HasSubstr("A turn, mean of 104:"));
  const std::string table = contentOf(csv);
  EXPECT_THAT(table, ::testing::StartsWith("strategy,seed,year,cash,"));
  EXPECT_THAT(table, HasSubstr("\ncasual,18446744073709551615,1,"));
  EXPECT_EQ(std::count(table.begin(), table.end(), '\n'), 3);
  EXPECT_EQ(static_cast<size_t>(std::count(table.begin(), table.end(), ',')), 3 * (columns.size() + 1));
  const std::string hash = runProgram({"replay", trace}).output;
  EXPECT_THAT(run.output, HasSubstr("ends at " + hash.substr(0, 16)));
  EXPECT_EQ(runProgram({"simulate", "--careers", "1", "--csv", "/nowhere/at/all"}).exitCode, 1);
}

}  // namespace
}  // namespace backbeat
