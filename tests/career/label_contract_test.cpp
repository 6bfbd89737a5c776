#include "career/label_contract.h"

#include <gtest/gtest.h>

#include "career/contract_end.h"
#include "career/contract_offers.h"
#include "career/screens/contract_offer_view_controller.h"
#include "career/screens/signed_contract_view_controller.h"
#include "support/world.h"

namespace backbeat {
namespace {

/// The draws of an offer at the smallest level: one EP of four songs, two LPs of ten.
void scriptOffer(ScriptedRandom& random) {
  random.integerIs(0, 2, 1).integerIs(0, 2, 1).integerIs(1, 3, 2);
  random.integerIs(10, 25, 15).doubleIs(0.80, 0.90, 0.85).doubleIs(0.0015, 0.003, 0.002);
  random.integerIs(10, 30, 25).integerIs(2, 4, 3).integerIs(50, 60, 55).doubleIs(0.90, 0.95, 0.92);
  random.integerIs(110, 120, 115).doubleIs(0.0055, 0.007, 0.006);
  random.integerIs(7, 13, 9).integerIs(7, 20, 15).integerIs(3, 5, 4).integerIs(6, 15, 10);
}

struct OfferWorld : World {
  OfferWorld() {
    state.totalFans = 40'000;
    state.weekNumberForTracking = 30;
    state.totalCashAvailable = 100;
    game.launch.contractOfferState = 1;
    settle();
  }
  /// Signed in week 30 for 89 weeks: one EP, two LPs, 24 songs, $150,000.
  void sign() {
    scriptOffer(random);
    drawContractOffer(game);
    signContract(game);
    game.saveFile.commit();
  }
  void release(int64_t eps, int64_t lps, int64_t songs) {
    state.saveAllContractLabelList.update(0, [&](ContractLabel& contract) {
      contract.epReleased = eps;
      contract.lpReleased = lps;
      contract.songsReleased = songs;
    });
    game.save(&GameState::saveAllContractLabelList);
  }
};

void expectFree(const GameState& state) {
  EXPECT_TRUE(state.saveAllContractLabelList.empty());
  EXPECT_EQ(state.underContract, 0);
  EXPECT_DOUBLE_EQ(state.streamingPayRate, 0.001);
  EXPECT_DOUBLE_EQ(state.youViewStreamingRate, 0.005);
  EXPECT_EQ(state.contractViralityBoost + state.contractMarketingBoost + state.contractStudioScore, 0);
  EXPECT_DOUBLE_EQ(state.contractAlbumPricing, 6.99);
  EXPECT_DOUBLE_EQ(state.contractFeatureDiscount, 1);
  EXPECT_DOUBLE_EQ(state.albumProductionCosts, 2.99);
}

TEST(ContractOffers, AnOfferComesToTheFamousAndLapsesAfterAWeek) {
  World world;
  const auto week = [&](int64_t fans, int64_t draw, int64_t threshold) {
    world.state.totalFans = fans;
    world.random.integerIs(0, 9, draw).integerIs(0, 45'000, threshold);
    checkLabelOfferBadge(world.game);
    return world.game.launch.contractOfferState;
  };
  EXPECT_EQ(week(35'000, 5, 0), 0) << "one listener short";
  EXPECT_EQ(week(35'001, 5, 5'001), 0) << "the threshold is not passed";
  EXPECT_EQ(week(35'001, 4, 5'000), 0);
  EXPECT_EQ(week(35'001, 5, 5'000), 1);
  EXPECT_EQ(week(35'001, 5, 45'000), 1) << "below 75,000 an offer can outlive its week";
  EXPECT_EQ(week(35'001, 5, 0), 0) << "and lapses at the next check that counts";
  world.state.underContract = 1;
  EXPECT_EQ(week(90'000, 5, 0), 0);
}

TEST(ContractOffers, EachLevelHasItsLabelAndItsTerms) {
  struct Level {
    int64_t fans;
    const char* label;
    int64_t cashLo, cashHi;
    double rateLo, rateHi;
  };
  for (const Level& level :
       {Level{499'999, "TNA Entertainment", 10, 25, 0.80, 0.90}, Level{500'000, "Atlas Records", 25, 60, 0.75, 0.85},
        Level{1'000'000, "Infinity Music", 60, 150, 0.70, 0.80},
        Level{9'999'999, "Legendary Records", 150, 1000, 0.65, 0.75},
        Level{10'000'000'000, "Global Music Group", 1000, 2500, 0.60, 0.70},
        Level{10'000'000'001, "TNA Entertainment", 10, 25, 0.80, 0.90}}) {
    SCOPED_TRACE(level.fans);
    MemoryStore store;
    SeededRandom random(static_cast<uint64_t>(level.fans));
    SetClock clock;
    RecordingPlatform platform;
    Game game{store, random, clock, platform};
    game.state.totalFans = level.fans;
    for (int i = 0; i < 40; ++i) {
      game.launch.contractOfferState = 1;
      drawContractOffer(game);
      const ContractOffer& offer = game.launch.contractOffer;
      EXPECT_STREQ(recordLabelOf(offer.contractLevel).recordLabel, level.label);
      EXPECT_TRUE(offer.tempCash >= level.cashLo * 10'000 && offer.tempCash <= level.cashHi * 10'000);
      EXPECT_TRUE(offer.tempPercentageRate >= level.rateLo && offer.tempPercentageRate <= level.rateHi);
      EXPECT_GE(offer.tempSongs, offer.tempEp * 3 + offer.tempLp * 6);
      EXPECT_GE(offer.tempEndDate - offer.tempStartDate, offer.tempSongs + 26 + 7 * (offer.tempEp + offer.tempLp));
    }
  }
}

TEST(ContractOffers, TermsAreDrawnOnceAndSigningPutsThemIntoForce) {
  OfferWorld world;
  scriptOffer(world.random);
  ContractOfferViewController(world.game).open();
  ContractOfferViewController again(world.game);
  again.open();  // draws nothing
  EXPECT_EQ(world.game.launch.contractOfferState, 2);
  const ContractOffer& offer = world.game.launch.contractOffer;
  EXPECT_EQ(offer.tempSongs, 24);
  EXPECT_EQ(offer.tempEndDate, 30 + 9 + 2 * 15 + 24 + 26);
  EXPECT_NE(offerDeal(offer).find("TNA Entertainment will take a 85% cut on all"), std::string::npos);
  EXPECT_NE(offerExpectations(offer).find("within 89 weeks.\nFailure"), std::string::npos);

  again.act({"signContract", ""});
  EXPECT_DOUBLE_EQ(world.state.totalCashAvailable, 150'100);
  EXPECT_EQ(world.game.launch.contractOfferState, 0);
  EXPECT_EQ(world.state.underContract, 1);
  EXPECT_DOUBLE_EQ(world.state.streamingPayRate, 0.002);
  EXPECT_DOUBLE_EQ(world.state.youViewStreamingRate, 0.006);
  EXPECT_EQ(world.state.contractViralityBoost, 3);
  EXPECT_EQ(world.state.contractMarketingBoost, 25);
  EXPECT_EQ(world.state.contractStudioScore, 55);
  EXPECT_DOUBLE_EQ(world.state.contractAlbumPricing, 9.99);
  EXPECT_DOUBLE_EQ(world.state.contractFeatureDiscount, 0.92);
  EXPECT_DOUBLE_EQ(world.state.albumProductionCosts, 0);
  ASSERT_EQ(world.state.saveAllContractLabelList.size(), 1u);
  const ContractLabel& contract = world.state.saveAllContractLabelList[0];
  EXPECT_EQ(contract.contractStartWeek, 31);
  EXPECT_EQ(contract.contractEndWeek, 119);
  EXPECT_DOUBLE_EQ(contract.tourTicketCost, 115);

  again.act({"signContract", ""});
  EXPECT_EQ(world.state.saveAllContractLabelList.size(), 1u) << "signed once";
}

TEST(ContractOffers, NothingCanBeSignedBeforeItsTermsWereSeen) {
  OfferWorld world;
  const GameState before = world.state;
  signContract(world.game);
  EXPECT_TRUE(world.state == before);
}

TEST(ContractDeadline, ADealIsLostTheWeekAfterItsLastUnlessItsTermsAreMet) {
  OfferWorld world;
  world.sign();
  world.release(1, 2, 23);
  world.state.weekNumberForTracking = 119;
  EXPECT_TRUE(checkContractDeadlines(world.game).alerts.empty());
  world.state.weekNumberForTracking = 200;
  world.release(1, 2, 24);
  EXPECT_TRUE(checkContractDeadlines(world.game).alerts.empty()) << "a fulfilled deal runs on";
  world.release(0, 9, 99);
  world.state.totalCashAvailable = 10;
  world.settle();
  const Outcome outcome = checkContractDeadlines(world.game);
  ASSERT_EQ(outcome.alerts.size(), 1u);
  EXPECT_EQ(outcome.alerts[0].title, "❌ Terminated ❌");
  EXPECT_NE(outcome.alerts[0].message.find("pay back $150,000."), std::string::npos);
  EXPECT_DOUBLE_EQ(world.state.totalCashAvailable, -149'990);
  expectFree(world.state);
}

TEST(ContractDeadline, ATourIsCalledOffWithTheDeal) {
  OfferWorld world;
  world.sign();
  MusicTour played;
  played.hasPerformed = true;
  world.state.saveAllMusicTourList.append(played);
  world.state.saveAllMusicTourList.append(MusicTour());
  world.state.onTour = 1;
  world.state.onTourEnergyCost = 40;
  world.state.weekNumberForTracking = 120;
  world.settle();
  world.random.integerIs(52, 70, 61);
  checkContractDeadlines(world.game);
  EXPECT_TRUE(world.state.saveAllMusicTourList[1].hasPerformed);
  EXPECT_EQ(world.state.onTour + world.state.onTourEnergyCost, 0);
  EXPECT_EQ(world.state.timeUntilNextTour, 61);
  expectFree(world.state);
}

TEST(ContractEnd, ByChoiceItCostsTheAdvanceOnlyWhileTermsAreOpen) {
  OfferWorld world;
  world.sign();
  SignedContractViewController screen(world.game);
  world.state.onTour = 1;
  EXPECT_EQ(screen.act({"endContract", ""}).alerts.at(0).title, "Currently on Tour");
  EXPECT_EQ(screen.act({"confirmEndContract", ""}).alerts.at(0).title, "Currently on Tour");
  world.state.onTour = 0;
  const Outcome question = screen.act({"endContract", ""});
  EXPECT_EQ(question.alerts.at(0).message,
            "\nAre you sure you want to cancel your contract?\n\nYou will owe $150,000 back to TNA Entertainment.");
  EXPECT_EQ(world.state.underContract, 1) << "asked, not ended";
  screen.act(question.alerts.at(0).buttons.at(1).action);
  EXPECT_DOUBLE_EQ(world.state.totalCashAvailable, 100);
  expectFree(world.state);

  OfferWorld fulfilled;
  fulfilled.sign();
  fulfilled.release(1, 2, 24);
  SignedContractViewController other(fulfilled.game);
  EXPECT_EQ(other.act({"endContract", ""}).alerts.at(0).title, "End Partnership?");
  other.act({"confirmEndContract", ""});
  EXPECT_DOUBLE_EQ(fulfilled.state.totalCashAvailable, 150'100);
  expectFree(fulfilled.state);
}

}  // namespace
}  // namespace backbeat
