#include "wealth/venture_rounds.h"

#include <gmock/gmock.h>

#include "support/dates.h"
#include "support/world.h"
#include "wealth/builders.h"
#include "wealth/screens/investment_option_view_controller.h"
#include "wealth/ventures.h"

namespace backbeat {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

struct VentureWorld : World {
  VentureWorld() {
    setDate(state, 100);
    state.totalCashAvailable = 1'000'000;
    settle();
  }

  /// What is drawn when a round closes; of a seed round also when the next one comes.
  void roundCloses(int64_t lead, bool isSeed = false) {
    random.integerIs(0, 4, lead);
    if (isSeed) random.integerIs(4, 7, 5);
    random.integerIs(0, 7, 0).doubleIs(0.05, 0.2, 0.1).doubleIs(50'000, 5'000'000, 100'000);
    random.doubleIs(0.1, 0.5, 0.25).doubleIs(0.1, 0.5, 0.1);
  }

  FundingOffer raiseDrawn(int64_t luck, double least, double most, double step) {
    state.saveAllVentureInvestments.update(0, [](Venture& due) { due.timeUntilNextRaise = 0; });
    settle();
    random.integerIs(0, 8, luck).doubleIs(least, most, step);
    return drawRaise(random, venture());
  }

  /// A pitch of Flow, with twelve percent on offer.
  FundingOffer pitchDrawn() {
    random.integerIs(0, 8, 4);
    return drawPitch(random, *companyWithId(4));
  }

  const Venture& venture() const { return state.saveAllVentureInvestments[0]; }
};

TEST(VentureRounds, ASeedIsBoughtOutOfWhatIsThere) {
  VentureWorld world;
  const FundingOffer offer = world.pitchDrawn();
  EXPECT_EQ(offer.percent, 12);
  EXPECT_DOUBLE_EQ(costOf(offer, 12).dollars, 240'000);
  world.roundCloses(0, true);
  EXPECT_TRUE(invest(world.game, offer, 12).done());
  EXPECT_DOUBLE_EQ(world.state.totalCashAvailable, 760'000);
  const Venture& venture = world.venture();
  EXPECT_EQ(venture.totalSharesOwned, 60'000);
  EXPECT_EQ(venture.totalOutstandingShares, 500'000);
  EXPECT_EQ(venture.percentageOwned, 12);
  EXPECT_EQ(venture.percentageRemaining, 82);
  EXPECT_EQ(venture.lastValuation, 2'000'000);
  EXPECT_EQ(venture.weekSinceUpdate, 100);
  EXPECT_EQ(venture.timeUntilNextRaise, 5);
  EXPECT_THAT(venture.fundingRoundHistory, ElementsAre(360'000));
  EXPECT_THAT(venture.news, ElementsAre("Flow: Walt & Capital entered a 6% position for $120K"));
  const Chirp& chirp = world.state.saveAllChirpList[0];
  EXPECT_EQ(chirp.message,
            "Flow's Seed round led by Walt & Capital 🎉. We are thrilled to announce that the hard part begins.");
  EXPECT_EQ(chirp.artistId, 100'004);
  EXPECT_EQ(chirp.typeOfAccount, 2);
  EXPECT_EQ(chirp.likeCount, 10'000);
  EXPECT_EQ(chirp.commentCount, 2'500);
  EXPECT_EQ(chirp.reChirpCount, 1'000);
  EXPECT_TRUE(invest(world.game, offer, 12).done()) << "it is over";
  EXPECT_EQ(world.state.saveAllVentureInvestments.size(), 1u);
}

TEST(VentureRounds, FourRoundsDiluteAsWorkedOutByHand) {
  VentureWorld world;
  const FundingOffer seed = world.pitchDrawn();
  world.roundCloses(0, true);
  invest(world.game, seed, 12);

  // Series A at 3,000,000: eight percent on offer, half of it bought.
  const FundingOffer a = world.raiseDrawn(2, 1.1, 1.8, 1.5);
  EXPECT_EQ(a.percent, 8);
  EXPECT_EQ(a.capitalRaiseThisRound, 3'000'000);
  const StakeAfter after = stakeAfter(world.state, a, 4);
  EXPECT_NEAR(after.percent, 100 * 80.0 / 540, 1e-9);
  EXPECT_NEAR(after.dollars, 480'000, 1e-6);
  EXPECT_NEAR(after.paysAbove, 360'000 * 540.0 / 80, 1e-6);
  world.roundCloses(1);
  EXPECT_TRUE(invest(world.game, a, 4).done());
  const Venture& venture = world.venture();
  EXPECT_EQ(venture.totalOutstandingShares, 540'000);
  EXPECT_EQ(venture.totalSharesOwned, 80'000);
  EXPECT_EQ(venture.percentageOwned, 14);
  EXPECT_EQ(venture.percentageRemaining, 75);
  EXPECT_THAT(venture.shareholderPercentage, ElementsAre(5, 3));
  EXPECT_EQ(venture.lastValuation, 3'240'000);
  EXPECT_EQ(venture.timeUntilNextRaise, 5);

  // Series B at 4,050,000, left to the others.
  const FundingOffer b = world.raiseDrawn(0, 1.05, 1.6, 1.25);
  EXPECT_NEAR(stakeAfter(world.state, b, 0).percent, 100 * 80.0 / 561.6, 1e-9);
  world.roundCloses(2);
  EXPECT_THAT(passRound(world.game, b).alerts[0].message,
              HasSubstr("Billboard Capital took all of Flow's Series B round. Of the company you own 14% now."));
  EXPECT_EQ(venture.totalOutstandingShares, 561'600);
  EXPECT_EQ(venture.totalSharesOwned, 80'000);
  EXPECT_EQ(venture.percentageRemaining, 72);
  EXPECT_THAT(venture.shareholderPercentage, ElementsAre(4, 2, 3));
  EXPECT_EQ(venture.lastValuation, 4'212'000);

  // Series C at the same price, all of it.
  const FundingOffer c = world.raiseDrawn(8, 1.0, 1.5, 1.0);
  world.roundCloses(4);
  EXPECT_TRUE(invest(world.game, c, 10).done());
  EXPECT_EQ(venture.totalOutstandingShares, 645'840);
  EXPECT_EQ(venture.totalSharesOwned, 136'160);
  EXPECT_EQ(venture.percentageOwned, 21);
  EXPECT_EQ(venture.percentageRemaining, 62);
  EXPECT_THAT(venture.shareholderPercentage, ElementsAre(3, 1, 2, 4));
  EXPECT_EQ(venture.shareholderName.back(), "Creative Ventures");
  EXPECT_EQ(venture.lastValuation, 4'843'800);
  EXPECT_THAT(venture.fundingRoundHistory, ElementsAre(360'000, 240'000, 162'000, 631'800));
  EXPECT_DOUBLE_EQ(venture.investmentAmount, 781'200);
  EXPECT_EQ(venture.timeUntilNextRaise, -1) << "there are no more rounds";
  EXPECT_EQ(venture.weekSinceUpdate, 100);
  EXPECT_DOUBLE_EQ(world.state.totalCashAvailable, 1'000'000 - 781'200);
}

TEST(VentureRounds, NobodySellsMoreThanThereIsNorForMoreThanSomebodyHas) {
  VentureWorld world;
  Venture scarce = stakeIn(world.state, 4, 0);
  scarce.percentageRemaining = 7;
  world.state.saveAllVentureInvestments.append(scarce);
  const FundingOffer offer = world.raiseDrawn(8, 1.1, 1.8, 1.1);
  EXPECT_EQ(offer.percent, 7);
  world.state.totalCashAvailable = costOf(offer, 7).dollars - 1;
  world.settle();
  EXPECT_EQ(invest(world.game, offer, 7).result, Result::noCash);
  EXPECT_EQ(world.venture().currentFundingRound, 0);
}

TEST(VentureRounds, ADealIsTakenOffTheTableByItsVisit) {
  VentureWorld world;
  world.game.launch.ventures.ventureDealIndex = 3;
  InvestmentOptionViewController screen(world.game);
  world.random.integerIs(0, 8, 5);
  screen.open();
  EXPECT_EQ(screen.view().mainAction->price->dollars, 260'000);
  screen.act({"stake", "1"});
  EXPECT_EQ(screen.view().mainAction->price->dollars, 120'000) << "half of thirteen percent, cut";
  screen.passButton();
  EXPECT_TRUE(world.state.saveAllVentureInvestments.empty());
  InvestmentOptionViewController later(world.game);
  later.open();
  EXPECT_EQ(later.view().mainAction->label, "Close");
}

}  // namespace
}  // namespace backbeat
