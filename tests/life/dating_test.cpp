#include "life/dating.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "life/builders.h"
#include "life/dating_pools.h"
#include "life/match_list.h"
#include "life/parenthood_pools.h"
#include "life/partner.h"
#include "life/relationship_pools.h"
#include "support/world.h"

namespace backbeat {
namespace {

template <class Pool>
void expectPool(const char* name, const Pool& pool, size_t size) {
  EXPECT_EQ(pool.size(), size) << name;
  EXPECT_EQ(std::set<std::string_view>(pool.begin(), pool.end()).size(), size) << name << " says something twice";
}

TEST(LoveTexts, AreAsManyAsTheyShouldBeAndNoneTwice) {
  expectPool("maleTaglines", maleTaglines, 44);
  expectPool("femaleTagLines", femaleTagLines, 54);
  expectPool("pickupLines", pickupLines, 110);
  expectPool("acceptanceLines", acceptanceLines, 12);
  expectPool("lineRejections", lineRejections, 12);
  expectPool("rejectionLines", rejectionLines, 11);
  expectPool("relationshipChirps", relationshipChirps, 8);
  expectPool("breakupLines", breakupLines, 25);
  expectPool("harsherLines", harsherLines, 5);
  expectPool("goodBreakupLines", goodBreakupLines, 12);
  expectPool("compliments", compliments, 60);
  expectPool("dateIdeasPaid", dateIdeasPaid, 20);
  expectPool("dateIdeasFree", dateIdeasFree, 20);
  expectPool("dateIdeasDirty", dateIdeasDirty, 20);
  expectPool("endOfDateList", endOfDateList, 10);
  expectPool("serenadeReactions", serenadeReactions, 20);
  expectPool("serenadeReactionsExplicit", serenadeReactionsExplicit, 20);
  expectPool("generalChirps", generalChirps, 20);
  expectPool("childCompliments", childCompliments, 35);
  expectPool("babyReaction", babyReaction, 12);
  expectPool("qualityTimeActivites", qualityTimeActivites, 20);
  expectPool("causeOfDeathList", causeOfDeathList, 12);
  EXPECT_EQ(maleNames.size(), 79u);
  EXPECT_EQ(femaleNames.size(), 86u);
  EXPECT_EQ(matchInterests.size(), 78u);
  EXPECT_EQ(occupations.size(), 44u);
}

int64_t interestNamed(std::string_view name) {
  return static_cast<int64_t>(std::find(matchInterests.begin(), matchInterests.end(), name) - matchInterests.begin());
}

/// A 29 year old influencer who likes what is told, with maintenance 45.
void drawVegan(World& world, int64_t pictures, size_t taglines, size_t names) {
  const auto upTo = [](size_t count) { return static_cast<int64_t>(count) - 1; };
  world.random.integerIs(18, 40, 29).integerIs(5, 60, 18).integerIs(5, 35, 20);
  world.random.integerIs(0, 43, 17).doubleIs(0.9, 1.1, 1.1);
  world.random.integerIs(5, 100, 70).integerIs(5, 100, 80).integerIs(5, 100, 75).integerIs(5, 100, 45);
  for (const char* interest : {"Foodie", "Foodie", "Vegan", "Tea"}) {
    world.random.integerIs(0, upTo(matchInterests.size()), interestNamed(interest));
  }
  world.random.integerIs(1, pictures, 12).integerIs(0, upTo(taglines), 1).integerIs(0, upTo(names), 2);
}

struct AppWorld : World {
  AppWorld() {
    state.charisma = 30;
    state.totalEnergyAvailable = 6;
    state.weekNumberForTracking = 90;
    state.myArtistsName = "Mara Voss";
    settle();
  }
};

TEST(Dating, ACandidateIsDrawnInOrder) {
  AppWorld world;
  world.game.launch.dating.seekingPreference = seekingMan;
  drawVegan(world, 71, maleTaglines.size(), maleNames.size());
  drawMatchCandidate(world.game);
  const Matches& candidate = world.game.launch.dating.candidate;
  EXPECT_EQ(candidate.matchImage, "man12.png");
  EXPECT_EQ(candidate.name, maleNames[2]);
  EXPECT_EQ(candidate.occupation, "Influencer");
  EXPECT_DOUBLE_EQ(candidate.weeklyEarnings, 3'850);
  EXPECT_EQ(candidate.energyBonus, 8) << "a fifth of the chemistry, and 4 for the temper";
  EXPECT_EQ(candidate.interests, (std::vector<std::string>{"Foodie", "Vegan", "Tea"})) << "none stands twice";
  EXPECT_EQ(world.state.AllCompletedAchievements, std::vector<int64_t>{209});
  EXPECT_EQ(world.state.totalEnergyAvailable, 6);
}

TEST(Dating, TheMiddleOfTheTempersGivesTheMost) {
  EXPECT_EQ(candidateEnergy(5, 95), 0) << "never below 0";
  EXPECT_EQ(candidateEnergy(5, 9), 3);
  EXPECT_EQ(candidateEnergy(50, 10), 11);
  EXPECT_EQ(candidateEnergy(50, 49), 14);
  EXPECT_EQ(candidateEnergy(50, 60), 9);
  EXPECT_EQ(candidateEnergy(50, 89), 7);
}

TEST(Dating, WhoLikesBackBecomesARecordWithItsAnswerFixed) {
  AppWorld world;
  world.game.launch.dating.candidate = somebody(world.state, "Theo");
  world.random.integerIs(0, 200, 83);  // chemistry 54 and charisma 30 make 84
  drawVegan(world, 274, femaleTagLines.size(), femaleNames.size());
  const Outcome liked = swipe(world.game, Swipe::star);
  ASSERT_TRUE(liked.go);
  EXPECT_EQ(liked.go->segue, "goToRelationshipMatch");
  EXPECT_EQ(world.state.totalEnergyAvailable, 3);
  world.random.integerIs(0, 109, 0).integerIs(0, 1, 1).integerIs(0, 11, 11).integerIs(52, 156, 99);
  const Outcome sent = createMatchRecord(world.game);
  EXPECT_EQ(
      sent.alerts.at(0).message,
      "\nHi my name is Mara Voss if anyone is looking to make a mistake tonight.\n\nTake the next step by tapping "
      "the message bubble on the main FXY screen.");
  const Matches& match = world.state.saveAllMatchesList[0];
  EXPECT_EQ(match.name, "Theo");
  EXPECT_EQ(match.matchId, 1);
  EXPECT_EQ(match.superLike, 1);
  EXPECT_EQ(match.pickupLineResponse, "Bye.");
  EXPECT_EQ(match.timeToPropose, 99);
  EXPECT_EQ(match.weekMatched, 90);
  EXPECT_DOUBLE_EQ(match.relationshipStatus, 52);
  EXPECT_TRUE(createMatchRecord(world.game).alerts.empty()) << "one message each";
}

TEST(Dating, AHeartKeepsTheStarAndAPulledLikeDropsIt) {
  AppWorld world;
  world.game.launch.dating.pendingSuperLike = 1;
  world.random.integerIs(0, 200, 200);
  drawVegan(world, 274, femaleTagLines.size(), femaleNames.size());
  swipe(world.game, Swipe::heart);
  EXPECT_EQ(world.game.launch.dating.pendingSuperLike, 1);
  world.random.integerIs(0, 200, 200);
  drawVegan(world, 274, femaleTagLines.size(), femaleNames.size());
  swipe(world.game, Swipe::right);
  EXPECT_EQ(world.game.launch.dating.pendingSuperLike, 0);
  EXPECT_EQ(world.state.totalEnergyAvailable, 0);
  EXPECT_EQ(swipe(world.game, Swipe::left).alerts.at(0).message,
            "\nYou don't have the energy to keep swiping endlessly");
  EXPECT_EQ(swipe(world.game, Swipe::star).result, Result::noEnergy);
  EXPECT_EQ(world.game.launch.dating.pendingSuperLike, 0);
}

TEST(MatchList, AYesMakesACoupleAndANoIsGone) {
  AppWorld world;
  Matches no = somebody(world.state, "Ada");
  no.interested = 1;
  addMatch(world.state, no);
  const int64_t yes = addMatch(world.state, somebody(world.state, "Theo"));
  world.settle();
  world.random.integerIs(0, 10, 0);
  EXPECT_EQ(askOut(world.game, 1).alerts.at(0).title, "❌ 😊 ❌");
  EXPECT_EQ(world.state.saveAllMatchesList.size(), 1u);
  world.random.integerIs(0, 7, 0).doubleIs(0.05, 0.2, 0.1).doubleIs(100, 10'000, 5'055);
  world.random.doubleIs(0.1, 0.5, 0.5).doubleIs(0.1, 0.5, 0.1);
  askOut(world.game, yes);
  EXPECT_EQ(world.state.rejectionCount, 1);
  EXPECT_EQ(world.state.slideIntoDmsCount, 2);
  EXPECT_EQ(world.state.totalEnergyMax, 114);
  const Chirp& chirp = world.state.saveAllChirpList[0];
  EXPECT_EQ(chirp.message, "♥️ It's Official ♥️ Chirp, meet bae. Bae, meet Chirp 💋 Mara Voss");
  EXPECT_EQ(chirp.artistId, 200'002);
  EXPECT_EQ(chirp.likeCount, 505);
  EXPECT_EQ(chirp.commentCount, 252);
  EXPECT_EQ(chirp.reChirpCount, 50);
  EXPECT_TRUE(askOut(world.game, yes).alerts.empty()) << "they are together already";
}

struct CoupleWorld : World {
  explicit CoupleWorld(int64_t relationshipState) {
    state.weekNumberForTracking = 90;
    state.myArtistsName = "Mara Voss";
    state.totalCashAvailable = 900'000;
    state.askForMoneyEnergyCost = 20;
    Matches partner = somebody(state, "Theo");
    partner.relationshipStatus = 20;
    addPartner(state, partner, relationshipState, 40);
    addMatch(state, somebody(state, "Ada"));
    settle();
  }
  Outcome slide(int64_t hit) {
    random.integerIs(0, 1, 0).integerIs(0, 25, hit - 15);
    if (hit > 20) random.integerIs(0, 24, 0);
    return openMatchRow(game, 2);
  }
  const Matches& partner() { return state.saveAllMatchesList[0]; }
};

TEST(MatchList, WhoIsCaughtPaysInLove) {
  CoupleWorld world(love::dating);
  EXPECT_EQ(world.slide(20).alerts.at(0).title, "😬 Uh Oh 😬");
  EXPECT_DOUBLE_EQ(world.partner().relationshipStatus, 0) << "nothing is left, and it holds";
  EXPECT_EQ(world.partner().relationshipState, love::dating);
  world.random.integerIs(0, 1, 1);
  EXPECT_EQ(openMatchRow(world.game, 2).go->argument, "2");
  EXPECT_EQ(openMatchRow(world.game, 1).alerts.at(0).title, "❤️ It's Official ❤️");
}

TEST(MatchList, ItCanBeTheEndOfEverybody) {
  CoupleWorld world(love::engaged);
  addPartner(world.state, somebody(world.state, "Milo"), love::dating, 3);
  world.settle();
  EXPECT_EQ(world.slide(21).alerts.at(0).title, "MARA VOSS!🤬");
  EXPECT_FALSE(partnerPosition(world.state));
  EXPECT_EQ(world.partner().weekEndedDating, 90);
  EXPECT_EQ(world.partner().breakupLine, breakupLines[0]);
  EXPECT_EQ(world.state.totalEnergyMax, 100 + 14 + 14 - 15) << "only the first one's bonus goes";
  EXPECT_EQ(world.state.energyLossExDrama, 1);
  EXPECT_EQ(world.state.askForMoneyEnergyCost, 5);
  EXPECT_DOUBLE_EQ(world.state.totalCashAvailable, 900'000);
}

TEST(MatchList, ASpouseTakesHalf) {
  CoupleWorld world(love::married);
  const Outcome caught = world.slide(21);
  EXPECT_EQ(caught.alerts.at(0).title, "🤬 I WANT A DIVORCE!🤬");
  EXPECT_NE(caught.alerts.at(0).message.find("my share ($450K) of what WE built"), std::string::npos);
  EXPECT_DOUBLE_EQ(world.state.totalCashAvailable, 450'000);
  EXPECT_EQ(world.state.totalEnergyMax, 98);
  EXPECT_EQ(world.state.energyLossExDrama, 2);
}

TEST(MatchList, APrenupKeepsItAll) {
  CoupleWorld world(love::married);
  world.state.signPrenup = 1;
  world.settle();
  world.slide(21);
  EXPECT_DOUBLE_EQ(world.state.totalCashAvailable, 900'000);
  EXPECT_EQ(world.state.signPrenup, 0);
}

}  // namespace
}  // namespace backbeat
