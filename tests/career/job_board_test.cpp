#include "career/job_board.h"

#include "career/screens/job_board_view_controller.h"
#include "support/views.h"
#include "support/world.h"

namespace backbeat {
namespace {

TEST(JobBoard, EachVisitCostsEnergyAndWithTooLittleTheDoorStaysShut) {
  World world;
  world.state.totalEnergyAvailable = 9;
  world.settle();
  EXPECT_EQ(enterJobBoard(world.game).feedback, Feedback::none);
  EXPECT_EQ(world.state.totalEnergyAvailable, 4);
  world.expectSaved();
  EXPECT_EQ(enterJobBoard(world.game).feedback, Feedback::energyBounce);
  EXPECT_EQ(world.state.totalEnergyAvailable, 4);

  world.random.integerIs(0, 5, 0);
  JobBoardViewController empty(world.game);
  empty.open();
  EXPECT_EQ(std::get<EmptyHint>(empty.view().blocks.at(0)).text, "NO JOBS AVAILABLE");
}

TEST(JobBoard, AJobTakenRunsAndAnotherIsRefused) {
  World world;
  world.settle();
  world.random.integerIs(0, 5, 2).integerIs(0, 4, 3).integerIs(4, 20, 7).integerIs(0, 4, 3).integerIs(4, 20, 20);
  JobBoardViewController screen(world.game);
  screen.open();
  ASSERT_EQ(rowsOf(screen.view()).size(), 2u);
  EXPECT_EQ(rowsOf(screen.view())[0].title, "SERVER");
  EXPECT_EQ(rowsOf(screen.view())[0].subtitle, "+400/week | 7/week contract");

  screen.act({"jobButton3", ""});
  EXPECT_EQ(world.state.weeklyJobContractRemaining, 0) << "an empty row does nothing";
  screen.act({"jobButton1", ""});
  EXPECT_EQ(world.state.weeklyEnergyCost, 15);
  EXPECT_DOUBLE_EQ(world.state.weeklyJobIncome, 400);
  EXPECT_EQ(world.state.weeklyJobContractRemaining, 7);
  EXPECT_TRUE(rowsOf(screen.view())[0].selected);
  world.expectSaved();

  const Outcome refused = screen.act({"jobButton2", ""});
  ASSERT_EQ(refused.alerts.size(), 1u);
  EXPECT_EQ(refused.alerts[0].message, "\nYou already have an existing contract in place for 7 more week(s).");
  EXPECT_EQ(world.state.weeklyJobContractRemaining, 7);
  EXPECT_FALSE(rowsOf(screen.view())[1].selected);
}

TEST(JobBoard, AContractOfNWeeksPaysNReports) {
  World world;
  takeJob(world.game, {{"SERVER", 15, 400}, 2});
  int reportsPaid = 0;
  for (int week = 0; week < 5; ++week) {
    advanceJobContract(world.game);
    if (world.state.weeklyJobIncome > 0) ++reportsPaid;
  }
  EXPECT_EQ(reportsPaid, 2);
  EXPECT_EQ(world.state.weeklyEnergyCost, 0);
}

}  // namespace
}  // namespace backbeat
