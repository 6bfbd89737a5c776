#include "label/offer.h"

#include "label/builders.h"
#include "label/departments.h"
#include "label/screens/demo_and_offer_view_controller.h"
#include "support/world.h"

namespace backbeat {
namespace {

ScoutedArtist marlow() {
  return {.name = "Marlow Quinn",
          .songwriting = 63,
          .vocals = 58,
          .rhythm = 47,
          .charisma = 55,
          .virality = 44,
          .talent = 71,
          .monthlyListeners = 96'400,
          .demoRating = 61.25};
}

TEST(Offer, BeginsWithWhatTheLabelIsBesideTheArtist) {
  World world;
  foundLabel(world.state);
  world.state.labelNegotiationBonus = 7;
  for (int64_t code = 0; code < 5; ++code) addEmployee(world.state, code, 88);
  // Every department comes to (88 + 2) / 2, Production to (88 + 5) / 2; the artist rates 51.
  EXPECT_DOUBLE_EQ(firstTerms(world.state, marlow()).chanceToSign, 190 - (71 + 51) + (45 - 51) + 7);
  ScoutedArtist star = marlow();
  star.songwriting = star.vocals = star.rhythm = star.charisma = star.virality = 150;
  EXPECT_DOUBLE_EQ(firstTerms(world.state, star).chanceToSign, 0) << "never less than none";
}

TEST(Offer, EachTermMovesTheChanceWithinItsRange) {
  SigningTerms terms{.chanceToSign = 100};
  stepTerm(terms, SigningTerm::contractLength, -1);
  stepTerm(terms, SigningTerm::signingBonus, -1);
  EXPECT_DOUBLE_EQ(terms.chanceToSign, 100) << "both begin at their end";
  stepTerm(terms, SigningTerm::contractLength, 1);
  EXPECT_DOUBLE_EQ(terms.chanceToSign, 100.5);
  stepTerm(terms, SigningTerm::revenueShare, 1);
  EXPECT_DOUBLE_EQ(terms.chanceToSign, 97.5);
  for (int i = 0; i < 9; ++i) stepTerm(terms, SigningTerm::signingBonus, 1);
  EXPECT_EQ(terms.signingBonus, 1'000'000);
  EXPECT_NEAR(terms.chanceToSign, 97.5 + 9 * 0.8, 1e-9);
  stepTerm(terms, SigningTerm::signingBonus, 1);
  EXPECT_NEAR(terms.chanceToSign, 97.5 + 9 * 0.8 + 0.3, 1e-9);
  stepTerm(terms, SigningTerm::signingBonus, -1);
  stepTerm(terms, SigningTerm::signingBonus, -1);
  EXPECT_NEAR(terms.chanceToSign, 97.5 + 8 * 0.8, 1e-9);
  for (int i = 0; i < 60; ++i) stepTerm(terms, SigningTerm::revenueShare, -1);
  EXPECT_EQ(terms.revenueShare, 51);

  terms.chanceToSign = 2;
  stepTerm(terms, SigningTerm::revenueShare, 1);
  EXPECT_DOUBLE_EQ(terms.chanceToSign, 0);
  stepTerm(terms, SigningTerm::revenueShare, -1);
  EXPECT_DOUBLE_EQ(terms.chanceToSign, 3) << "what fell below none is lost";
}

TEST(Offer, IsAcceptedBelowTheChanceAndCostsItsEnergyAlways) {
  World world;
  GameState& state = world.state;
  foundLabel(state);
  state.totalEnergyAvailable = 90;
  state.totalCashAvailable = 99'999;
  state.weekNumberForTracking = 57;
  state.yearNumber = 2024;
  world.settle();
  const SigningTerms terms{.contractLength = 3, .revenueShare = 78, .chanceToSign = 121.9};
  world.random.integerIs(1, 99, 60);
  EXPECT_EQ(makeOffer(world.game, marlow(), terms).alerts.at(0).title, "😡 Rejected 😡") << "60 is not below 60";
  world.random.integerIs(1, 99, 59);
  EXPECT_EQ(makeOffer(world.game, marlow(), terms).alerts.at(0).title, "💰 Not Enough Cash 💰");
  EXPECT_EQ(state.totalEnergyAvailable, 40);
  EXPECT_DOUBLE_EQ(state.totalCashAvailable, 99'999);
  state.totalCashAvailable = 100'000;
  world.settle();
  world.random.integerIs(1, 99, 59).integerIs(30, 60, 44);
  const Outcome signedNow = makeOffer(world.game, marlow(), terms);
  EXPECT_TRUE(signedNow.go && signedNow.go->segue.empty()) << "the table is cleared";
  ASSERT_EQ(state.saveAllSignedArtistList.size(), 1u);
  const SignedArtist& artist = state.saveAllSignedArtistList[0];
  EXPECT_EQ(artist.artistId, 1);
  EXPECT_EQ(artist.weekEnd, 57 + 156);
  EXPECT_DOUBLE_EQ(artist.labelRevenuePercentage, 0.78);
  EXPECT_EQ(artist.weeksToCompleteAlbum, 44);
  EXPECT_EQ(artist.originalRating, 51);
  EXPECT_EQ(artist.originalSongwriting, 63);
  EXPECT_EQ(artist.originalVocals, 58);
  EXPECT_EQ(artist.originalRhythm, 47);
  EXPECT_EQ(artist.originalCharisma, 55);
  EXPECT_EQ(artist.originalVirality, 44);
  EXPECT_EQ(artist.talent, 71);
  EXPECT_DOUBLE_EQ(artist.totalLifetimeCost, 100'000);
  EXPECT_DOUBLE_EQ(state.totalCashAvailable, 0);
  EXPECT_DOUBLE_EQ(state.totalRecordLabelCost, 100'000);
  EXPECT_EQ(makeOffer(world.game, marlow(), terms).result, Result::noEnergy);
}

TEST(Offer, ThereIsOneAVisitAndOnlyForWhoCanBeHad) {
  World world;
  GameState& state = world.state;
  foundLabel(state);
  state.studioCapacity = 0;
  state.totalCashAvailable = 1e6;
  state.saveAllCreatedArtists.append(CreatedArtist{.name = "Paper Anna"});
  ScoutedArtist anna{.name = "Paper Anna", .createdPosition = 0};
  world.settle();
  DemoAndOfferViewController screen(world.game, inOneText(anna));
  screen.open();
  EXPECT_EQ(screen.act({"offerButton", ""}).alerts.at(0).title, "🎤 Studio Capacity 🎤");
  EXPECT_FALSE(screen.view().mainAction.has_value());
  EXPECT_TRUE(screen.act({"offerButton", ""}).alerts.empty());

  state.studioCapacity = 1;
  world.settle();
  world.random.integerIs(1, 99, 99).integerIs(30, 60, 30);
  const SigningTerms sure{.chanceToSign = 200};
  EXPECT_TRUE(makeOffer(world.game, anna, sure).done());
  EXPECT_TRUE(state.saveAllCreatedArtists.empty());
  makeOffer(world.game, anna, sure);
  EXPECT_EQ(state.saveAllSignedArtistList.size(), 1u) << "nobody signs twice";
}

}  // namespace
}  // namespace backbeat
