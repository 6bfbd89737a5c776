#include "life/takeover.h"

#include <gtest/gtest.h>

#include "core/own_photo.h"
#include "core/segue.h"
#include "life/builders.h"
#include "life/children.h"
#include "life/dynasty.h"
#include "live/builders.h"
#include "music/builders.h"
#include "support/dates.h"
#include "support/world.h"
#include "turn/week_story.h"

namespace backbeat {
namespace {

struct LateWorld : World {
  LateWorld() {
    setDate(state, 2'100);
    state.myArtistsName = "Nova Reyes";
    state.promptToEnterName = 1;
    state.totalCashAvailable = 100;
    state.totalEnergyAvailable = 75;
    addChild(state, childOf(state, "Ada", 20));
    settle();
  }
  int64_t inherited() { return inheritanceOf(state, state.saveAllChildList[0]).cash; }
};

TEST(Inheritance, IsSharedByTheFamilyAndSoAreDebts) {
  LateWorld world;
  EXPECT_EQ(world.inherited(), 100);
  addChild(world.state, childOf(world.state, "Milo", 6));
  addChild(world.state, childOf(world.state, "June", 4));
  Child abandoned = childOf(world.state, "Otis", 9);
  abandoned.typeOfRelationship = kinship::abandoned;
  addChild(world.state, abandoned);
  Child dead = childOf(world.state, "Teo", 70);
  dead.typeOfRelationship = kinship::dead;
  addChild(world.state, dead);
  EXPECT_EQ(world.inherited(), 33);
  world.state.totalCashAvailable = -100.75;
  EXPECT_EQ(world.inherited(), -33) << "toward zero";
  EXPECT_DOUBLE_EQ(inheritanceOf(world.state, dead).legacyNetWorth, -100.75);
  world.state.saveAllChildList.clear();
  EXPECT_EQ(inheritanceOf(world.state, dead).cash, 1);
  world.settle();
}

TEST(Takeover, TheWeeksOfAnHeirBeginWithTheTakeover) {
  LateWorld world;
  takeOver(world.game, 0);
  EXPECT_FALSE(anyWeekReported(world.state)) << "the week before was the parent's";
  world.state.monthlyListenerData = {0, 0, 0};
  world.state.weekNumberForTracking = 2'102;  // whose turn it is to tell the time
  world.settle();
  EXPECT_TRUE(anyWeekReported(world.state));
  EXPECT_EQ(weekStory(world.game, {}), "3 weeks in, and the first song is still to come.");
}

TEST(Takeover, TakesAnHeirOfAgeAndTheEnergyForIt) {
  LateWorld world;
  world.state.totalEnergyAvailable = 74;
  addChild(world.state, childOf(world.state, "Milo", 17));
  world.settle();
  EXPECT_EQ(takeOver(world.game, 0).alerts.at(0).message, "\nYou do not have enough energy.");
  EXPECT_EQ(retireAndPlayAs(world.game, 0, {}).result, Result::noEnergy);
  world.state.totalEnergyAvailable = 75;
  world.settle();
  EXPECT_TRUE(takeOver(world.game, 1).alerts.empty());
  EXPECT_EQ(world.state.myArtistsName, "Nova Reyes");
  const std::string asked = retireAndPlayAs(world.game, 0, {}).alerts.at(0).message;
  EXPECT_EQ(asked.find("history"), std::string::npos);
  world.state.myLabelName = "Long Way";
  world.settle();
  EXPECT_NE(retireAndPlayAs(world.game, 0, {})
                .alerts.at(0)
                .message.find("upgrades. You will also inherit the name Long Way in your family's history."),
            std::string::npos);
}

TEST(Takeover, TheHeirBeginsWithWhatTheChildHas) {
  LateWorld world;
  world.state.permanentEnergyUpgrade = 15;
  world.state.isLabelLaunched = 1;
  world.state.twitterHeaderImage = "a header";
  world.state.saveRingImage = "ring3.png";
  world.state.saveAllChildList.update(0, [](Child& child) { child.followers = 812; });
  world.game.launch.merchSongs = {3};
  world.game.turn.before.absoluteWeek = 2'099;
  const std::string face = portraitOf(world.state, world.state.saveAllChildList[0]).name;
  world.settle();
  EXPECT_EQ(takeOver(world.game, 0).go->segue, startOverSegue);
  const GameState& heir = world.state;
  EXPECT_EQ(heir.myArtistsName, "Ada");
  EXPECT_DOUBLE_EQ(heir.totalCashAvailable, 100);
  EXPECT_EQ(heir.totalFans, 812);
  EXPECT_EQ(heir.totalEnergyMax, 135);
  EXPECT_EQ(heir.totalEnergyAvailable, 135);
  EXPECT_EQ(heir.songWriting, 24);
  EXPECT_EQ(heir.songWritingEnergyCost, 25);
  EXPECT_EQ(heir.virality, 1) << "from -4";
  EXPECT_EQ(heir.viralityEnergyCost, 2);
  EXPECT_EQ(heir.weekNumberForTracking, 2'100);
  EXPECT_EQ(heir.ageAtTakeover, heir.yearNumber);
  EXPECT_EQ(heir.isLabelLaunched, 0);
  EXPECT_EQ(heir.heirParentNames, "Mara Voss\nInes");
  EXPECT_EQ(heir.twitterHeaderImage + heir.saveRingImage, "");
  EXPECT_EQ(heir.AllCompletedAchievements, std::vector<int64_t>{307});
  EXPECT_EQ(heir.saveAllWeeklyLineItems.size(), 1u) << "the basic needs";
  EXPECT_TRUE(world.game.launch.merchSongs.empty());
  EXPECT_EQ(world.game.turn.before.absoluteWeek, 0) << "the heir is not compared with the parent's week";
  EXPECT_EQ(artistPicture(heir).name, face) << "grown up at 20, and still the same";
  chooseNextPortrait(world.game);
  EXPECT_EQ(artistPicture(heir).name, face + " #2");
}

TEST(Takeover, TheBookHasALineForEachGeneration) {
  LateWorld world;
  takeOver(world.game, 0);
  setDate(world.state, 3'300);
  world.state.totalEnergyAvailable = 100;
  addChild(world.state, childOf(world.state, "Otis", 30));
  world.settle();
  takeOver(world.game, 0);
  ASSERT_EQ(world.state.saveAllLegacyList.size(), 2u);
  const Legacy& first = world.state.saveAllLegacyList[0];
  const Legacy& second = world.state.saveAllLegacyList[1];
  EXPECT_EQ(first.yearBorn, 2005);
  EXPECT_EQ(lifeYears(first), "2005 – 2063");
  EXPECT_TRUE(first.parentsNames.empty());
  EXPECT_EQ(second.name, "Ada");
  EXPECT_EQ(second.yearBorn, 2043) << "the year in which the child was born";
  EXPECT_EQ(childOfText(second), "(child of Mara Voss & Ines)");
  EXPECT_EQ(second.imageString.substr(0, 15), "portrait:1:man:");
  const Tree tree = familyTree(world.state);
  ASSERT_EQ(tree.people.size(), 5u) << "three artists, and two who were beside them";
  EXPECT_EQ(tree.people.back().title, "Otis");
  EXPECT_EQ(tree.people.back().generation, 2);
}

TEST(Legacy, TellsOfAllThatIsOut) {
  LateWorld world;
  GameState& state = world.state;
  state.saveAllSongList.append(songInProduction(3, "Unheard"));
  Song hit = releasedSong(6, "Velvet Rivers");
  hit.totalListen = 900;
  hit.isExplicit = 1;
  state.saveAllSongList.append(hit);
  Album diamond = releasedAlbum(2, "Northern Lights");
  diamond.albumsSold = 70;
  diamond.albumAward = 5;
  state.saveAllAlbumList.append(releasedAlbum(0, "Single"));
  state.saveAllAlbumList.append(diamond);
  const auto chart = [&](int64_t songId, int64_t weeks, int64_t weeksAtOne) {
    BillboardSong row;
    row.songId = songId;
    row.songTitle = "Row " + std::to_string(songId);
    row.weeksOnChart = weeks;
    row.weeksAtOne = weeksAtOne;
    state.saveAllBillboardSongList.append(row);
  };
  chart(6, 12, 0);
  chart(1'000'006, 90, 40);  // the label's
  chart(10'000'006, 20, 3);
  const auto perform = [&](int64_t tourId, int64_t seats, int64_t gross, bool hasPerformed) {
    MusicTour venue = venueOnTour("Harbour Bowl", 1, seats);
    venue.tourId = tourId;
    venue.tourTitle = "Tour " + std::to_string(tourId);
    venue.grossRevenue = gross;
    venue.hasPerformed = hasPerformed;
    state.saveAllMusicTourList.append(venue);
    WeeklyTourSales show;
    show.tourId = tourId;
    show.seatsSold = seats;
    if (hasPerformed) state.saveAllWeeklyTourSales.append(show);
  };
  perform(1, 500, 9'000, true);
  perform(2, 300, 4'000, true);
  perform(2, 300, 2'000, true);
  perform(3, 5'000, 0, false);
  for (const int64_t isWinner : {0, 1}) {
    Award award;
    award.nameOfAward = "Record of the Year";
    award.yearAwarded = 2040 + isWinner;
    award.isWinner = isWinner;
    state.saveAllMusicAwards.append(award);
  }
  world.settle();
  takeOver(world.game, 0);
  const Legacy& legacy = state.saveAllLegacyList[0];
  EXPECT_EQ(legacy.numOfSongs, 1);
  EXPECT_EQ(legacy.numOfAlbums, 1);
  EXPECT_EQ(legacy.biggestSong, "Velvet Rivers");
  EXPECT_EQ(legacy.numberOfExplicitSongs, 1);
  EXPECT_EQ(legacy.diamondCertifications, 1);
  EXPECT_EQ(legacy.numberOfBillboardHits, 2);
  EXPECT_EQ(legacy.longestBillboardNumberOneTitle, "Row 10000006");
  EXPECT_EQ(legacy.numOfTours, 2);
  EXPECT_EQ(legacy.biggestTourName, "Tour 2");
  EXPECT_EQ(legacy.biggestTour, 6'000);
  EXPECT_EQ(legacy.biggestTourSeatsSold, 600);
  EXPECT_EQ(legacy.awardsWon, std::vector<std::string>{"Record of the Year (2041)"});
  EXPECT_EQ(legacy.imageString, "Nova Reyes");
  EXPECT_TRUE(legacy.spotifyBio.starts_with("Nova Reyes • Musician\nNova Reyes was that rarest"));
}

}  // namespace
}  // namespace backbeat
