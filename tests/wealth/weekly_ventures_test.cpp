#include "wealth/weekly_ventures.h"

#include <gmock/gmock.h>

#include "core/news.h"
#include "support/dates.h"
#include "support/world.h"
#include "wealth/builders.h"
#include "wealth/news.h"
#include "wealth/screens/venture_report.h"
#include "wealth/ventures.h"

namespace backbeat {
namespace {

using testing::ElementsAre;

struct ReportWorld : World {
  ReportWorld() { setDate(state, 200); }

  /// Flow, last looked at so many weeks ago.
  void hold(int64_t round, int64_t weeksAgo, int64_t weeksToRaise, int64_t hasExited = 0) {
    Venture venture = stakeIn(state, 4, round);
    venture.weekSinceUpdate = state.weekNumberForTracking - weeksAgo;
    venture.timeUntilNextRaise = weeksToRaise;
    venture.hasExited = hasExited;
    venture.news.clear();
    state.saveAllVentureInvestments.append(venture);
    settle();
  }
  void worth(int64_t valuation) {
    state.saveAllVentureInvestments.update(0, [&](Venture& venture) { venture.lastValuation = valuation; });
    settle();
  }
  void chirps(int64_t line) {
    random.integerIs(0, 7, line);
    counts();
  }
  void counts() {
    random.doubleIs(0.05, 0.2, 0.1).doubleIs(50'000, 5'000'000, 100'000);
    random.doubleIs(0.1, 0.5, 0.2).doubleIs(0.1, 0.5, 0.1);
  }
  const Venture& venture() const { return state.saveAllVentureInvestments[0]; }
  std::string told() const { return startupsOfWeek(game).items.at(0).title; }
  std::string headline() const {
    std::vector<News> news;
    addWealthNews(game, news);
    return news.empty() ? "" : news[0].headline;
  }
};

TEST(WeeklyVentures, AValuationRisesOrFallsAboutOnceAYear) {
  ReportWorld world;
  world.hold(0, 46, 3);
  world.random.integerIs(45, 60, 45).integerIs(0, 10, 2).doubleIs(1.05, 2.0, 1.5);
  world.chirps(0);
  updateVentureValuations(world.game);
  EXPECT_EQ(world.venture().lastValuation, 3'000'000);
  EXPECT_EQ(world.venture().timeUntilNextRaise, 1) << "one for the week, one for the event";
  EXPECT_EQ(world.venture().weekSinceUpdate, 200);
  EXPECT_THAT(world.venture().news, ElementsAre("FLOW is growing faster than its office.  up from $2.0M 🔼🎉"));
  EXPECT_EQ(world.state.saveAllChirpList[0].message, world.venture().news[0]);
  EXPECT_EQ(world.told(), "Flow has a new valuation.");

  world.state.saveAllVentureInvestments.update(0, [](Venture& venture) {
    venture.weekSinceUpdate = 140;
    venture.timeUntilNextRaise = 2;
  });
  world.settle();
  world.random.integerIs(45, 60, 59).integerIs(0, 10, 8).doubleIs(0.5, 0.95, 0.5);
  world.chirps(7);
  updateVentureValuations(world.game);
  EXPECT_EQ(world.venture().lastValuation, 1'500'000);
  EXPECT_EQ(world.venture().timeUntilNextRaise, 0);
  EXPECT_EQ(world.venture().currentFundingRound, 0) << "the round became due by the event alone";
  EXPECT_EQ(world.venture().news.back(), "FLOW says that the market is wrong.  down from $3.0M 🔽");
}

TEST(WeeklyVentures, ManyLooksMakeNoNews) {
  ReportWorld world;
  world.hold(3, 45, -1);
  world.random.integerIs(45, 60, 45);
  updateVentureValuations(world.game);
  EXPECT_EQ(world.venture().weekSinceUpdate, 155) << "a year is not over";
  world.state.saveAllVentureInvestments.update(0, [](Venture& venture) { venture.weekSinceUpdate = 100; });
  world.settle();
  const Venture before = world.venture();
  world.random.integerIs(45, 60, 60).integerIs(0, 10, 3);
  updateVentureValuations(world.game);
  Venture after = world.venture();
  EXPECT_EQ(after.weekSinceUpdate, 200) << "the clock starts again in silence";
  after.weekSinceUpdate = before.weekSinceUpdate;
  EXPECT_TRUE(after == before);
  EXPECT_TRUE(startupsOfWeek(world.game).items.empty());
  world.state.saveAllVentureInvestments.update(0, [](Venture& venture) { venture.hasExited = 4; });
  world.settle();
  world.random.integerIs(45, 60, 45);
  updateVentureValuations(world.game);
  EXPECT_EQ(world.venture().weekSinceUpdate, 200) << "what has ended draws, and no more";
}

TEST(WeeklyVentures, ALookFindsARoundDueAndItClosesWithoutTheArtist) {
  ReportWorld world;
  world.hold(0, 70, 1);  // the week makes it due
  world.random.integerIs(45, 60, 60).integerIs(0, 10, 5);
  world.random.integerIs(0, 8, 4).doubleIs(1.1, 1.8, 1.2).integerIs(0, 4, 3);
  world.chirps(1);
  updateVentureValuations(world.game);
  const Venture& venture = world.venture();
  EXPECT_EQ(venture.currentFundingRound, 1);
  EXPECT_EQ(venture.timeUntilNextRaise, 5);
  EXPECT_EQ(venture.totalOutstandingShares, 550'000) << "ten percent of new shares, all to the lead investor";
  EXPECT_EQ(venture.totalSharesOwned, 50'000);
  EXPECT_EQ(venture.percentageOwned, 9);
  EXPECT_EQ(venture.lastValuation, 2'640'000);
  EXPECT_EQ(venture.shareholderName.back(), "Theel Investments");
}

TEST(WeeklyVentures, BankruptcyNeedsNoLuckAndAMillionIsSafe) {
  ReportWorld world;
  world.hold(3, 10, -1);
  world.worth(1'000'000);
  resolveVentureExits(world.game);
  EXPECT_EQ(world.venture().hasExited, 0) << "nothing is drawn at exactly a million";
  world.worth(999'999);
  world.counts();
  resolveVentureExits(world.game);
  EXPECT_EQ(world.venture().hasExited, 3);
  EXPECT_EQ(world.state.saveAllChirpList[0].message, "Flow made the hard decision to file for bankruptcy today.");
  EXPECT_EQ(world.told(), "Flow has filed for bankruptcy.");
  EXPECT_EQ(world.headline(), "Flow is bankrupt");
  EXPECT_DOUBLE_EQ(world.state.biggestExit, 0);
  resolveVentureExits(world.game);  // what has ended draws nothing
}

TEST(WeeklyVentures, WhoHadAllRoundsMayBeBoughtOrGoPublic) {
  ReportWorld world;
  world.hold(2, 10, 0);
  resolveVentureExits(world.game);
  EXPECT_EQ(world.venture().hasExited, 0) << "not before Series C";

  world.state.saveAllVentureInvestments.clear();
  world.hold(3, 10, -1);
  world.worth(9'765'625);
  world.state.totalCashAvailable = 5;
  world.state.biggestExit = 600'000;
  world.settle();
  world.random.integerIs(0, 40, 6);
  resolveVentureExits(world.game);
  EXPECT_EQ(world.venture().hasExited, 0);
  const Venture before = world.venture();
  world.random.integerIs(0, 40, 5);
  world.counts();
  resolveVentureExits(world.game);
  EXPECT_EQ(world.venture().hasExited, 1);
  EXPECT_NEAR(world.state.totalCashAvailable, 5 + 500'000, 1) << "50,000 of 976,562 shares";
  EXPECT_DOUBLE_EQ(world.state.biggestExit, 600'000) << "there was a greater one";
  EXPECT_EQ(world.state.saveAllChirpList[0].message,
            "We are excited to announce that Flow was acquired for $9.7M 🎉🍾🥂.");
  EXPECT_EQ(world.told(), "Flow was acquired.");
  EXPECT_EQ(world.headline(), "Flow was bought");

  world.state.saveAllVentureInvestments.update(0, [&](Venture& venture) { venture = before; });
  world.state.biggestExit = 0;
  world.game.turn.ventures.clear();
  world.settle();
  world.random.integerIs(0, 40, 11);
  world.counts();
  resolveVentureExits(world.game);
  EXPECT_EQ(world.venture().hasExited, 2);
  EXPECT_NEAR(world.venture().publicSharePrice, 10, 0.001);
  EXPECT_NEAR(world.state.biggestExit, 500'000, 1);
  EXPECT_EQ(world.state.saveAllChirpList[0].message,
            "We are excited to announce that Flow rang the bell and IPO'd at $10.00 a share at a $9.7M market cap "
            "🎉🍾💰.");
  EXPECT_EQ(world.told(), "Flow IPO'd today.");
}

TEST(WeeklyVentures, AStakeThatIsWorthTwiceItsPriceIsNewsOnce) {
  ReportWorld world;
  world.hold(0, 46, 3);
  world.game.turn.before.cash = world.state.totalCashAvailable;
  world.random.integerIs(45, 60, 45).integerIs(0, 10, 0).doubleIs(1.05, 2.0, 2.0);
  world.chirps(0);
  updateVentureValuations(world.game);
  EXPECT_EQ(world.headline(), "Your part of Flow has doubled");
  world.game.turn.ventures[0].valuationBefore = 4'000'000;
  EXPECT_EQ(world.headline(), "");
}

}  // namespace
}  // namespace backbeat
