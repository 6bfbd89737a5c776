#include "label/roster.h"

#include "label/accounts.h"
#include "label/artist_contract.h"
#include "label/builders.h"
#include "label/coaching.h"
#include "support/dates.h"
#include "support/world.h"

namespace backbeat {
namespace {

void change(World& world, void (*how)(SignedArtist&)) {
  world.state.saveAllSignedArtistList.update(0, how);
  world.settle();
}

struct Studio : World {
  Studio() {
    setDate(state, 300);
    foundLabel(state);
    addSignedArtist(state, "Juno Hale", 60);
    state.businessTrait1 = 14;
    state.totalEnergyAvailable = 100;
    settle();
  }
  const SignedArtist& juno() const { return state.saveAllSignedArtistList[0]; }
};

TEST(Coaching, HelpsWithLuckAndCostsEitherWay) {
  Studio world;
  world.random.integerIs(0, 1, 1).integerIs(0, 6, 4);
  const Outcome learned = coachArtist(world.game, 1);
  EXPECT_EQ(learned.alerts.at(0).title, "🎉 +1 TALENT 🎉");
  EXPECT_EQ(world.juno().talent, 51);
  EXPECT_EQ(world.state.totalEnergyAvailable, 72) << "28, and not the fraction of it";
  world.random.integerIs(0, 1, 1).integerIs(0, 6, 6);
  EXPECT_EQ(coachArtist(world.game, 1).alerts.at(0).title, "🎉 +2 HAPPINESS 🎉");
  EXPECT_DOUBLE_EQ(world.juno().happiness, 92);
  world.random.integerIs(0, 1, 0);
  EXPECT_EQ(coachArtist(world.game, 1).alerts.at(0).title, "👏 Good Effort 👏");
  EXPECT_EQ(coachArtist(world.game, 1).result, Result::noEnergy);
}

TEST(Coaching, NothingIsLeftToLearnAtItsEndNorWithoutAContract) {
  Studio world;
  change(world, [](SignedArtist& juno) { juno.rhythm = 110; });
  world.random.integerIs(0, 1, 1).integerIs(0, 6, 5);
  EXPECT_EQ(coachArtist(world.game, 1).alerts.at(0).title, "👏 Good Effort 👏");
  EXPECT_EQ(world.juno().rhythm, 110);
  EXPECT_EQ(world.state.totalEnergyAvailable, 72);
  EXPECT_TRUE(dropArtist(world.game, 1).done());
  EXPECT_TRUE(coachArtist(world.game, 1).alerts.empty());
  EXPECT_TRUE(coachArtist(world.game, 99).alerts.empty());
  EXPECT_EQ(world.state.totalEnergyAvailable, 72);
}

TEST(ArtistContract, IsRenewedForTheBonusAndLongerEachTime) {
  Studio world;
  EXPECT_TRUE(askToRenew(world.state, 1, {}).alerts.empty()) << "it is not up";
  setDate(world.state, 404);
  world.state.totalCashAvailable = 199'999;
  world.settle();
  ASSERT_TRUE(contractIsUp(world.state, world.juno()));
  EXPECT_EQ(askToRenew(world.state, 1, {}).alerts.at(0).message,
            "\nJuno Hale's contract is up for renewal. Would you like to renew at the original contract terms?\n\n"
            "SIGNING BONUS\n$200,000\n\nCONTRACT\n+2 Years\n\nROYALTY\n\n20%");
  EXPECT_EQ(renewContract(world.game, 1).result, Result::noCash);
  world.state.totalCashAvailable = 500'000;
  world.settle();
  EXPECT_TRUE(renewContract(world.game, 1).done());
  EXPECT_EQ(world.juno().weekEnd, 508);
  EXPECT_EQ(world.juno().weekSigned, 300) << "the first signing, so that years add up";
  EXPECT_DOUBLE_EQ(world.juno().totalLifetimeCost, 400'000);
  EXPECT_DOUBLE_EQ(world.state.totalRecordLabelCost, 200'000);
  EXPECT_DOUBLE_EQ(world.state.totalCashAvailable, 300'000);
  EXPECT_EQ(renewalYears(world.juno()), 4);
  change(world, [](SignedArtist& juno) { juno.weekEnd = 300 + 9 * 52; });
  EXPECT_EQ(renewalYears(world.juno()), 5);
}

TEST(ArtistContract, WhoIsDroppedIsTakenOffTheSongInPreparation) {
  Studio world;
  world.game.launch.selectedFeaturedArtists = {3, 51};
  EXPECT_EQ(askToDrop(world.state, 1, {}).result, Result::asked);
  EXPECT_TRUE(dropArtist(world.game, 1).done());
  EXPECT_FALSE(world.juno().underContract);
  EXPECT_EQ(world.game.launch.selectedFeaturedArtists, std::vector<int64_t>{3});
  EXPECT_TRUE(askToDrop(world.state, 1, {}).alerts.empty());
  EXPECT_TRUE(askToRenew(world.state, 1, {}).alerts.empty());
}

double plainSum(const GameState& state) {
  double sum = 0;
  for (const auto& week : state.saveAllSignedArtistWeeklySongListens) sum += week.totalStreamRevenue;
  for (const auto& week : state.saveAllSignedArtistWeeklyAlbumSales) sum += week.albumRevenue;
  return sum;
}

TEST(LabelSums, FollowTheWeeksThatComeAndThoseThatAreClearedAway) {
  Studio world;
  const int64_t first = addSignedAlbum(world.state, 1, 2, 40);
  addSignedArtist(world.state, "Lil Ember", 30);
  const int64_t second = addSignedAlbum(world.state, 2, 1, 40);
  addSignedWeeks(world.state, first, 3, 1'000);
  EXPECT_NEAR(storedRoyalties(world.game), 3 * (2 * 2.4 + 672), 1e-6);
  addSignedWeeks(world.state, second, 1, 5'000);
  EXPECT_NEAR(storedRoyalties(world.game), plainSum(world.state), 1e-6);
  EXPECT_NEAR(earnedByArtist(world.game, 2), 12 + 672, 1e-6);
  EXPECT_NEAR(earnedBy(labelSums(world.game).streams.ofWork, 2), 7.2, 1e-6);
  EXPECT_DOUBLE_EQ(earnedBy(labelSums(world.game).sales.ofWork, 77), 0);

  // Two weeks go and two of another artist come: as many rows as before.
  world.state.saveAllSignedArtistWeeklyAlbumSales.erase(0);
  world.state.saveAllSignedArtistWeeklyAlbumSales.erase(0);
  setDate(world.state, 302);
  addSignedWeeks(world.state, second, 2, 7'000);
  EXPECT_NEAR(storedRoyalties(world.game), plainSum(world.state), 1e-6);
  EXPECT_NEAR(earnedByArtist(world.game, 1), 672 + 14.4, 1e-6);
  world.settle();
}

TEST(LabelReturn, CountsVersesForTheLabelAndKeepsTheBest) {
  Studio world;
  addSignedWeeks(world.state, addSignedAlbum(world.state, 1, 1, 40), 1, 1'000);
  for (const int64_t isSigned : {1, 0}) {
    FeaturedOn verse;
    verse.songId = 10 + isSigned;
    verse.isSignedArtist = isSigned;
    world.state.saveAllFeaturedOnList.append(verse);
    FeaturedOnWeeklySongListens week;
    week.songId = verse.songId;
    week.totalStreamRevenue = 50.5;
    world.state.saveAllFeaturedOnWeeklySongListens.append(week);
  }
  world.state.totalRecordLabelCost = 100;
  world.state.mostSuccessfulLabelHighScore = 600;
  world.settle();
  const LabelReturn all = labelReturn(world.game);
  EXPECT_NEAR(all.earnings(), 672 + 2.4 + 50.5, 1e-6);
  EXPECT_NEAR(all.net(), 624.9, 1e-6);
  keepBestReturn(world.game);
  EXPECT_EQ(world.state.mostSuccessfulLabelHighScore, 624);
  world.state.totalRecordLabelCost = 5'000;
  world.settle();
  keepBestReturn(world.game);
  EXPECT_EQ(world.state.mostSuccessfulLabelHighScore, 624) << "it never falls";
}

}  // namespace
}  // namespace backbeat
