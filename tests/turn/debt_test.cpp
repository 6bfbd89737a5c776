// How money that runs out is told: calmly to a beginner, as a headline once a debt grows.
#include <gtest/gtest.h>

#include "career/ledger.h"
#include "core/news.h"
#include "support/world.h"
#include "turn/news.h"

namespace backbeat {
namespace {

Need needOf(const World& world) {
  std::vector<Need> needs;
  addTurnNeeds(world.game, needs);
  return needs.empty() ? Need{} : needs.front();
}

TEST(Debt, ABeginnerIsToldOfWorkAndAnArtistInDebtOfTheDebt) {
  World world;
  ensureBasicNeeds(world.game);
  world.state.weekNumberForTracking = 1;
  world.state.totalCashAvailable = 0;
  EXPECT_EQ(needOf(world).title, "A job pays for the start");
  EXPECT_EQ(needOf(world).subtitle, "A job brings $300 to $400 a week");
  EXPECT_EQ(needOf(world).segue, "goToJobBoard");
  world.state.weekNumberForTracking = 30;
  EXPECT_EQ(needOf(world).title, "Money runs out this week");
  world.state.totalCashAvailable = -120;
  EXPECT_EQ(needOf(world).title, "You owe $120");
  world.state.weeklyJobContractRemaining = 4;
  world.state.weeklyJobIncome = 10;
  EXPECT_EQ(needOf(world).segue, "goToExpenseScreen") << "who works is not sent to the board";
}

/// The rank of the news about debt after a week that took the cash from one amount to another; 0 without any.
int64_t rankOfDebt(double before, double now) {
  World world;
  world.game.turn.before.absoluteWeek = 9;
  world.game.turn.before.cash = before;
  world.state.totalCashAvailable = now;
  std::vector<News> news;
  addTurnNews(world.game, news);
  return news.empty() ? 0 : news.front().rank;
}

TEST(Debt, LeadsAReportOnlyWhereItGrewGreat) {
  EXPECT_GT(rankOfDebt(0, -50), 0);
  EXPECT_LT(rankOfDebt(0, -50), headlineRank);
  EXPECT_EQ(rankOfDebt(-50, -100), 0);
  EXPECT_GE(rankOfDebt(-200, -250), headlineRank);
  EXPECT_EQ(rankOfDebt(-250, -300), 0);
  EXPECT_GE(rankOfDebt(-900, -1'000), headlineRank);
  EXPECT_EQ(rankOfDebt(-2'000, -1'000), 0) << "it shrinks";
}

}  // namespace
}  // namespace backbeat
