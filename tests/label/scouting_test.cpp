#include "label/scouting.h"

#include "label/artist_creation.h"
#include "label/builders.h"
#include "label/departments.h"
#include "label/screens/find_new_artists_view_controller.h"
#include "support/world.h"

namespace backbeat {
namespace {

TEST(Scouting, FindsByTheScoutsAndThePlayersRecruiting) {
  struct Case {
    int64_t rating, recruiting, least, most, found;  ///< at most; 0 where somebody is found in any case
  };
  for (const Case& each : {Case{1, 1, 10, 10, 1}, Case{20, 11, 10, 21, 2}, Case{40, 21, 15, 41, 3},
                           Case{80, 41, 25, 81, 0}, Case{100, 50, 25, 100, 0}, Case{402, 50, 10, 251, 1}}) {
    World world;
    addEmployee(world.state, department::artistsAndRepertoire, each.rating);
    world.state.businessTrait4 = each.recruiting;
    const ScoutingBounds bounds = scoutingBounds(world.state);
    EXPECT_EQ(bounds.minTraitRatings, each.least) << each.rating;
    EXPECT_EQ(bounds.maxTraitRatings, each.most) << each.rating;
    if (each.found == 0) continue;
    world.random.integerIs(0, each.found, 0);
    EXPECT_TRUE(generateScoutingList(world.game).empty());
  }
  World nobody;
  EXPECT_TRUE(generateScoutingList(nobody.game).empty()) << "and nothing is drawn";
}

TEST(Scouting, WhomThePlayerMadeUpStandsFirstAndOthersAreDrawn) {
  World world;
  GameState& state = world.state;
  addEmployee(state, department::artistsAndRepertoire, 60);
  state.businessTrait4 = 30;  // traits from 15 to 60
  state.studioConsole = 46;   // a studio of 50
  state.saveAllCreatedArtists.append(CreatedArtist{.name = "Paper Anna", .virality = 8, .demoRating = 28});
  world.random.integerIs(0, 3, 2);
  world.random.integerIs(0, 1, 0).integerIs(0, 107, 1).integerIs(0, 62, 3).integerIs(1, 90, 71);
  world.random.integerIs(15, 60, 40).integerIs(15, 60, 60).integerIs(15, 60, 50).integerIs(15, 60, 60);
  world.random.integerIs(15, 60, 50).doubleIs(0, 40, 20);
  // Charisma and writing count 45 each, music 50, the studio 50; with a roll of 15 the mean is 41, below the worst.
  world.random.doubleIs(20.5, 41, 35).integerIs(25'000, 125'000, 96'400);
  world.random.integerIs(0, 1, 1).integerIs(0, 26, 26).integerIs(0, 48, 0).integerIs(1, 90, 5);
  world.random.integerIs(15, 60, 15).integerIs(15, 60, 15).integerIs(15, 60, 15).integerIs(15, 60, 15);
  world.random.integerIs(15, 60, 15).doubleIs(0, 15, 0).doubleIs(11.25, 17.5, 12).integerIs(1'000, 5'000, 1'000);

  const std::vector<ScoutedArtist> artists = generateScoutingList(world.game);
  ASSERT_EQ(artists.size(), 3u);
  EXPECT_EQ(artists[0].name, "Paper Anna");
  EXPECT_EQ(artists[0].createdPosition, 0);
  EXPECT_DOUBLE_EQ(artists[0].demoRating, 28);
  EXPECT_EQ(artists[1].name, "Noah ") << "the blank of a missing family name stays";
  EXPECT_EQ(artists[1].virality, 40);
  EXPECT_EQ(artists[1].charisma, 60);
  EXPECT_EQ(artists[1].vocals, 50);
  EXPECT_EQ(artists[1].songwriting, 60);
  EXPECT_EQ(artists[1].rhythm, 50);
  EXPECT_EQ(artists[1].monthlyListeners, 96'400);
  EXPECT_DOUBLE_EQ(artists[1].demoRating, 40);
  EXPECT_EQ(artists[2].name, "Saint Bone");
  EXPECT_EQ(fromOneText(inOneText(artists[1])), artists[1]);
  EXPECT_EQ(fromOneText("987654321").name, "");
}

TEST(Scouting, ADemoIsPaidAndTheOthersHaveGoneAfterwards) {
  World world;
  GameState& state = world.state;
  foundLabel(state);
  addEmployee(state, department::artistsAndRepertoire, 1);
  state.saveAllCreatedArtists.append(CreatedArtist{.name = "Paper Anna"});
  state.totalEnergyAvailable = 6;
  world.settle();
  FindNewArtistsViewController screen(world.game);
  world.random.integerIs(0, 1, 0);
  screen.open();
  screen.appear();
  EXPECT_EQ(screen.act({"demo:0", ""}).go->segue, "goToDemoAndOffer");
  EXPECT_EQ(state.totalEnergyAvailable, 1);
  world.random.integerIs(0, 1, 0);
  screen.appear();
  screen.appear();
  EXPECT_EQ(screen.act({"demo:0", ""}).result, Result::noEnergy);
  screen.appear();
}

TEST(ArtistCreation, GivesPointsInTwosAndAnswersWithADemo) {
  World world;
  GameState& state = world.state;
  foundLabel(state);
  addEmployee(state, department::artistsAndRepertoire, 61);
  state.businessTrait4 = 10;
  state.studioConsole = 26;  // a studio of 30
  state.totalEnergyAvailable = 80;
  world.settle();
  ArtistIdea idea{.remaining = totalTraitPoints(state)};
  EXPECT_EQ(idea.remaining, 200);
  const ArtistPoint& charisma = artistPoints[0];
  const ArtistPoint& virality = artistPoints[3];
  for (int i = 0; i < 60; ++i) stepPoint(idea, charisma, 1);
  EXPECT_EQ(idea.artist.charisma, 100);
  stepPoint(idea, virality, -1);
  for (int i = 0; i < 60; ++i) stepPoint(idea, virality, 1);
  EXPECT_EQ(idea.remaining, 0);
  stepPoint(idea, charisma, -1);
  EXPECT_EQ(idea.remaining, 2);

  idea.artist.name = " \n";
  EXPECT_EQ(createArtist(world.game, idea).result, Result::refused);
  idea.artist.name = " Anna";
  // (98 + 100) / 6 is a rating of 33; charisma counts 73.5, the studio 30, the roll 75.
  world.random.integerIs(5'000, 25'000, 7'000).doubleIs(0, 100, 100).doubleIs(0, 35.7, 30);
  EXPECT_TRUE(createArtist(world.game, idea).done());
  ASSERT_EQ(state.saveAllCreatedArtists.size(), 1u);
  EXPECT_EQ(state.saveAllCreatedArtists[0].name, " Anna");
  EXPECT_EQ(state.saveAllCreatedArtists[0].monthlyListeners, 7'000);
  EXPECT_EQ(state.saveAllCreatedArtists[0].demoRating, 34) << "cut from 34.75";
  EXPECT_EQ(state.totalEnergyAvailable, 5);
  EXPECT_EQ(createArtist(world.game, idea).result, Result::noEnergy);
}

}  // namespace
}  // namespace backbeat
