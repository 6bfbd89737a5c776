#include "features/verse_offer.h"

#include <gtest/gtest.h>

#include "features/builders.h"
#include "support/dates.h"
#include "support/world.h"

namespace backbeat {
namespace {

/// An artist of a skill of 50, with energy for one negotiation.
struct AskedWorld : World {
  AskedWorld() {
    setDate(state, 60);
    state.myArtistsName = "Mara Voss";
    for (int64_t* skill : {&state.rhythm, &state.charisma, &state.vocalRange, &state.songWriting, &state.virality}) {
      *skill = 50;
    }
    state.totalEnergyAvailable = 34;
    state.streamingPayRate = 0.002;
    settle();
  }
  const FeaturedOn& booked() const { return state.saveAllFeaturedOnList.back(); }
};

VerseOffer offerOf(double rating) {
  return {.artistId = 12,
          .artistName = "Dex Monarch",
          .rating = rating,
          .virality = 42,
          .title = "Wild Echoes",
          .trackRating = 47.25,
          .fee = 4'700,
          .royalty = 12};
}

TEST(VerseOffer, AStarNearThePlayersSkillAsksOnTermsThatFollowFromItsRow) {
  AskedWorld world;
  world.random
      .integerIs(0, 14, 6)  // the fifteen stars rated 20 to 70: from row 3 on
      .integerIs(0, 59, 13)
      .integerIs(0, 59, 7)
      .doubleIs(28, 43, 39.126)
      .doubleIs(0.05, 0.15, 0.1)
      .integerIs(5, 10, 8);

  const VerseOffer offer = drawVerseOffer(world.game);

  EXPECT_EQ(offer.artistName, "Indigo Wren");
  EXPECT_EQ(offer.artistId, 9);
  EXPECT_EQ(offer.title, "Wild Echoes");
  EXPECT_DOUBLE_EQ(offer.trackRating, 39.13);
  EXPECT_EQ(offer.fee, 3'500);
  EXPECT_EQ(offer.royalty, 11);  // 8, and 3 for a rating of 38
}

TEST(VerseOffer, AnArtistOfTheLabelAsksByACoinAndKeepsToTheContract) {
  AskedWorld world;
  SignedArtist dropped = artistOfTheLabel(1, "Gone Girl", 0.5);
  dropped.underContract = false;
  world.state.saveAllSignedArtistList.append(dropped);
  world.state.saveAllSignedArtistList.append(artistOfTheLabel(2, "Nell Okafor", 0.785));
  world.state.isLabelLaunched = 1;
  world.state.labelStreamingRate = 0.01;
  world.settle();
  world.random.integerIs(0, 1, 1).integerIs(0, 0, 0).integerIs(0, 59, 0).integerIs(0, 59, 0).doubleIs(50, 65, 61);
  const VerseOffer offer = drawVerseOffer(world.game);
  EXPECT_EQ(offer.artistName, "Nell Okafor");
  EXPECT_EQ(offer.fee, 0);
  EXPECT_EQ(offer.royalty, 21);  // less 79 of a hundred

  world.state.totalEnergyAvailable = 10;
  world.settle();
  const Outcome refusal = negotiateVerse(world.game, offer, 1);
  EXPECT_EQ(refusal.alerts[0].title, "❌ Royalty Exception ❌");
  EXPECT_EQ(refusal.alerts[0].message,
            "Nell Okafor is currently signed to your label under a 21% royalty deal. You can't ask for any more "
            "royalties for this artist.");
  EXPECT_EQ(world.state.totalEnergyAvailable, 10);
  world.random.integerIs(10, 60, 33).doubleIs(0, 55, 40);
  EXPECT_TRUE(acceptVerse(world.game, offer).done());
  EXPECT_EQ(world.booked().isSignedArtist, 1);
  EXPECT_EQ(world.booked().artistId, 2);
  EXPECT_DOUBLE_EQ(world.booked().percentageOfEarnings, 0.21);
  EXPECT_DOUBLE_EQ(world.booked().streamPayRate, 0.01);
}

TEST(VerseOffer, TheChanceFallsWithTheirRatingAndWithWhatIsAsked) {
  AskedWorld world;
  const auto chanceOf = [&](double rating, int64_t points) {
    return negotiationChance(world.state, offerOf(rating), points);
  };
  const std::pair<double, int64_t> steps[] = {{71, 5},  {70, 15}, {61, 15}, {60.9, 30}, {51, 30}, {50, 50},
                                              {40, 50}, {39, 65}, {30, 65}, {29, 80},   {20, 80}, {19, 90}};
  for (const auto& [rating, chance] : steps) EXPECT_EQ(chanceOf(rating, 1), chance) << rating;
  EXPECT_EQ(chanceOf(50, 5), 38);
  EXPECT_EQ(chanceOf(50, 20), 0);
}

TEST(VerseOffer, AnAcceptedVerseIsBookedAsOffered) {
  AskedWorld world;
  world.random.integerIs(10, 44, 20).doubleIs(0, 46, 30);

  EXPECT_TRUE(acceptVerse(world.game, offerOf(44)).done());

  EXPECT_EQ(world.state.totalEnergyAvailable, 24);
  EXPECT_DOUBLE_EQ(world.state.totalCashAvailable, 4'700);
  EXPECT_EQ(world.state.featuredOnSongId, 1);
  FeaturedOn expected;
  expected.songId = 1;
  expected.artistId = 12;
  expected.artistName = "Dex Monarch";
  expected.title = "Wild Echoes";
  expected.album = "Single";
  expected.isReleased = true;
  expected.releaseWeek = 60;
  expected.releaseYear = 2024;
  expected.productionRating = 47.25;
  expected.viralityScore = 22.5;
  expected.features = {"", "Mara Voss"};
  expected.marketingScore = 20;
  expected.flatFee = 4'700;
  expected.streamPayRate = 0.002;
  expected.percentageOfEarnings = 0.12;
  EXPECT_TRUE(world.booked() == expected);
}

TEST(VerseOffer, ANegotiationIsPaidOnceAndWonBelowItsChance) {
  AskedWorld world;
  world.random.integerIs(0, 100, 38);  // the chance is 38
  const Outcome lost = negotiateVerse(world.game, offerOf(50), 5);
  EXPECT_EQ(lost.alerts[0].message, "\nAfter consideration, Dex Monarch went with somebody else.");
  EXPECT_EQ(world.state.totalEnergyAvailable, 9);
  EXPECT_TRUE(world.state.saveAllFeaturedOnList.empty());
  EXPECT_EQ(negotiateVerse(world.game, offerOf(50), 5).result, Result::noEnergy);
  EXPECT_EQ(acceptVerse(world.game, offerOf(50)).result, Result::noEnergy);

  world.state.totalEnergyAvailable = 25;
  world.settle();
  world.random.integerIs(0, 100, 37).integerIs(10, 50, 10).doubleIs(0, 46, 0);
  EXPECT_TRUE(negotiateVerse(world.game, offerOf(50), 5).done());
  EXPECT_EQ(world.state.totalEnergyAvailable, 0);
  EXPECT_DOUBLE_EQ(world.booked().percentageOfEarnings, 0.17);
  EXPECT_DOUBLE_EQ(world.state.totalCashAvailable, 4'700);
}

}  // namespace
}  // namespace backbeat
