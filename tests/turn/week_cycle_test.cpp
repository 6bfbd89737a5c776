#include "turn/week_cycle.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "music/builders.h"
#include "support/world.h"
#include "turn/screens/weekly_summary_view_controller.h"

namespace backbeat {
namespace {

/// Remembers which keys each transaction wrote.
class TransactionLog final : public Store {
 public:
  bool commit(std::span<const Write> writes) override {
    std::set<std::string>& keys = transactions.emplace_back();
    for (const Write& write : writes) keys.insert(write.key);
    return true;
  }
  bool visitRows(const std::function<void(std::string_view, int32_t, const Value&)>&) override { return true; }
  void quarantine(std::string_view) override {}

  /// Numbers of the transactions that wrote `key`.
  std::vector<size_t> writesOf(const std::string& key) const {
    std::vector<size_t> numbers;
    for (size_t i = 0; i < transactions.size(); ++i) {
      if (transactions[i].count(key)) numbers.push_back(i);
    }
    return numbers;
  }

  std::vector<std::set<std::string>> transactions;
};

struct WeekWorld : World {
  /// A turn in which nobody has released anything; returns its report.
  WeeklyReport quietWeek() {
    random.integerIs(10'000'000, 15'000'000, 10'000'000);  // the chart opens
    random.doubleIs(0, 2, 1).doubleIs(0.75, 1.25, 1).doubleIs(0.3, 0.7, 0.5);
    random.integerIs(0, 9, 0).integerIs(0, 45'000, 0).doubleIs(-0.01, 0.01, 0.005);
    random.integerIs(0, 100, 0);  // no side gig
    WeeklySummaryViewController report(game);
    runWeekCycle(game, [&] { report.open(); });
    return report.report();
  }
};

TEST(WeekCycle, StepsAreSavedInOrderAndTheDateNeverPartsFromTheCash) {
  TransactionLog log;
  SeededRandom random(7);
  SetClock clock;
  RecordingPlatform platform;
  Game game{log, random, clock, platform};
  game.state.saveAllSongList.append(releasedSong(12, "Paper Lanterns"));
  game.state.saveAllAlbumList.append(releasedAlbum(5, "Lanterns"));
  game.state.weeklyJobContractRemaining = 3;
  game.state.weeklyJobIncome = 300;
  WeeklySummaryViewController report(game);
  runWeekCycle(game, [&] { report.open(); });

  const std::vector<std::string> inOrder = {"saveAllWeeklyAlbumSales", "saveAllWeeklySongListens",
                                            "monthlyListenerData",     "weeklyJobContractRemaining",
                                            "totalEnergyAvailable",    "weekNumberForTracking"};
  for (size_t i = 1; i < inOrder.size(); ++i) {
    ASSERT_FALSE(log.writesOf(inOrder[i]).empty()) << inOrder[i];
    EXPECT_LT(log.writesOf(inOrder[i - 1]).front(), log.writesOf(inOrder[i]).front()) << inOrder[i];
  }
  ASSERT_EQ(log.writesOf("weekNumberForTracking").size(), 1u);
  const size_t last = log.writesOf("weekNumberForTracking").front();
  EXPECT_EQ(last, log.transactions.size() - 1);
  for (const char* key :
       {"weekNumber", "yearNumber", "timeUntilNextTour", "realEstateIndex", "saveAllWeeklyLineItems"}) {
    EXPECT_EQ(log.writesOf(key), std::vector<size_t>{last}) << key;
  }
  EXPECT_TRUE(log.transactions[last].count("totalCashAvailable"));
  EXPECT_EQ(report.report().weeklySongListens.size(), 1u) << "the report sees what the steps wrote";
}

TEST(WeekCycle, WritesThatFailAreMadeUpForByTheNextOnes) {
  WeekWorld world;
  world.settle();
  world.store.failNext(4);
  world.quietWeek();
  EXPECT_FALSE(world.game.saveFile.failing());
}

TEST(WeekCycle, TheYearTurnsBetweenTheWeekAndItsReport) {
  WeekWorld world;
  world.state.weekNumber = 52;
  world.state.weekNumberForTracking = 52;
  world.state.totalEnergyAvailable = 3;
  world.settle();
  const WeeklyReport report = world.quietWeek();
  EXPECT_EQ(report.week, (CalendarWeek{52, 2023}));
  EXPECT_EQ(world.state.weekNumber, 1);
  EXPECT_EQ(world.state.yearNumber, 2024);
  EXPECT_EQ(world.state.weekNumberForTracking, 53);
  EXPECT_EQ(world.state.totalEnergyMax, 99);
  EXPECT_EQ(world.state.totalEnergyAvailable, 100) << "filled to last year's ceiling";
}

TEST(WeekCycle, AJobOfTwoWeeksPaysTwoReports) {
  WeekWorld world;
  world.state.weeklyJobContractRemaining = 2;
  world.state.weeklyJobIncome = 300;
  world.state.weeklyEnergyCost = 12;
  world.settle();
  for (const auto& [pay, energy] : {std::pair{300.0, 88}, {300.0, 88}, {0.0, 100}}) {
    EXPECT_DOUBLE_EQ(world.quietWeek().job, pay);
    EXPECT_EQ(world.state.totalEnergyAvailable, energy);
  }
  EXPECT_DOUBLE_EQ(world.state.totalCashAvailable, 2 * 300 - 3 * 50);
}

TEST(WeekCycle, TheRestAfterATourRunsOnlyOffStage) {
  WeekWorld world;
  world.state.timeUntilNextTour = 2;
  world.quietWeek();
  EXPECT_EQ(world.state.timeUntilNextTour, 1);
  world.state.onTour = 1;
  world.quietWeek();
  EXPECT_EQ(world.state.timeUntilNextTour, 1);
}

}  // namespace
}  // namespace backbeat
