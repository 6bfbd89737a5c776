#include "life/relationship.h"

#include <gtest/gtest.h>

#include "life/builders.h"
#include "life/dating_pools.h"
#include "life/engagement.h"
#include "life/partner.h"
#include "life/relationship_events.h"
#include "music/builders.h"
#include "support/world.h"

namespace backbeat {
namespace {

struct HomeWorld : World {
  explicit HomeWorld(int64_t relationshipState = love::dating, double closeness = 50) {
    state.weekNumberForTracking = state.weekNumber = 40;
    state.myArtistsName = "Mara Voss";
    state.totalCashAvailable = 30'000;
    state.totalEnergyAvailable = 30;
    Matches partner = somebody(state, "Theo");
    partner.relationshipStatus = closeness;
    partner.timeToPropose = 20;
    addPartner(state, partner, relationshipState, 31);
    settle();
  }
  const Matches& partner() { return state.saveAllMatchesList[0]; }
  void change(void (*how)(Matches&)) {
    state.saveAllMatchesList.update(0, how);
    settle();
  }
  void chirpIsDrawn() {
    random.doubleIs(0.05, 0.2, 0.1).doubleIs(100, 10'000, 1'000).doubleIs(0.1, 0.5, 0.2).doubleIs(0.1, 0.5, 0.2);
  }
};

TEST(Relationship, ADateIsDirtyFreeOrPaid) {
  HomeWorld world;
  world.random.integerIs(0, 4, 2).integerIs(0, 19, 0).integerIs(2, 7, 7);
  EXPECT_EQ(qualityTime(world.game).alerts.at(0).message,
            "\nYou and Theo decided to give each other a massage - things got steamy fast.\n\nYour relationship grew "
            "by +7");
  world.random.integerIs(0, 4, 1).integerIs(0, 19, 9).integerIs(2, 4, 3).integerIs(0, 9, 2);
  world.chirpIsDrawn();
  qualityTime(world.game);
  EXPECT_EQ(world.state.saveAllChirpList[0].message, "Mara Voss and I decided to feed the ducks! What a date!");
  EXPECT_EQ(world.state.saveAllChirpList[0].artistName, "Theo");
  world.random.integerIs(0, 4, 3).doubleIs(10, 75, 50).integerIs(0, 19, 1).integerIs(2, 4, 2);
  qualityTime(world.game);
  EXPECT_DOUBLE_EQ(world.partner().relationshipStatus, 62);
  EXPECT_DOUBLE_EQ(world.state.totalCashAvailable, 29'950);
  EXPECT_EQ(world.state.totalEnergyAvailable, 0);
  EXPECT_EQ(qualityTime(world.game).result, Result::noEnergy);
}

TEST(Relationship, ADateWithoutCashCostsNothing) {
  HomeWorld world;
  world.state.totalCashAvailable = 49;
  world.settle();
  world.random.integerIs(0, 4, 4).doubleIs(10, 75, 50);
  EXPECT_EQ(qualityTime(world.game).result, Result::noCash);
  EXPECT_EQ(world.state.totalEnergyAvailable, 30);
}

TEST(Relationship, AThrustIsRemembered) {
  HomeWorld world;
  furnishCareer(world.state, 2, 1);
  for (size_t i = 0; i < world.state.saveAllSongList.size(); ++i) {
    world.state.saveAllSongList.update(i, [](Song& song) { song.isExplicit = 1; });
  }
  world.settle();
  const auto songs = static_cast<int64_t>(world.state.saveAllSongList.size());
  world.random.integerIs(1, 7, 4).integerIs(0, songs - 1, 1).integerIs(0, 19, 0);
  serenade(world.game);
  EXPECT_EQ(world.state.AllCompletedAchievements, std::vector<int64_t>{207});
  EXPECT_DOUBLE_EQ(world.partner().relationshipStatus, 54);
}

TEST(Relationship, AskingForMoneyGetsDearerAndMayBeTheEnd) {
  HomeWorld world;
  world.random.doubleIs(0.1, 0.3, 0.2).integerIs(10, 50, 50).integerIs(0, 2, 1);
  askForMoney(world.game);
  EXPECT_DOUBLE_EQ(world.state.totalCashAvailable, 30'350);
  EXPECT_DOUBLE_EQ(world.partner().relationshipStatus, 0);
  EXPECT_EQ(askForMoneyCost(world.state).energy, 10);
  world.random.doubleIs(0.1, 0.3, 0.2).integerIs(10, 50, 10).integerIs(0, 2, 2).integerIs(0, 27, 25);
  world.chirpIsDrawn();
  EXPECT_EQ(askForMoney(world.game).alerts.at(0).title, "MARA VOSS!🤬");
  EXPECT_DOUBLE_EQ(world.state.totalCashAvailable, 30'350) << "no cash at the end";
  EXPECT_EQ(askForMoneyCost(world.state).energy, 5);
  EXPECT_EQ(world.state.totalEnergyAvailable, 15);
  EXPECT_EQ(world.state.totalEnergyMax, 99);
}

TEST(Relationship, KindWordsSpareTheDrama) {
  HomeWorld world;
  world.random.integerIs(0, 1, 1).integerIs(0, 11, 0);
  EXPECT_EQ(breakup(world.game).alerts.at(0).title, "💔 Moving On 💔");
  EXPECT_EQ(world.state.totalEnergyMax, 100);
  EXPECT_EQ(world.state.energyLossExDrama, 0);
  EXPECT_EQ(world.state.totalEnergyAvailable, 5);
}

TEST(Relationship, ADivorceTakesHalfAndLeavesDrama) {
  HomeWorld world(love::married);
  world.random.integerIs(0, 1, 1).integerIs(0, 11, 0);
  EXPECT_EQ(breakup(world.game).alerts.at(0).title, "💔 Ready to Move On 💔");
  EXPECT_DOUBLE_EQ(world.state.totalCashAvailable, 15'000);
  EXPECT_EQ(world.state.totalEnergyMax, 98);
  EXPECT_EQ(world.state.energyLossExDrama, 2);
}

TEST(Engagement, ItTakesTimeLoveAndARing) {
  HomeWorld world(love::dating, 85);
  world.change([](Matches& partner) { partner.timeToPropose = 31; });
  EXPECT_EQ(mainAction(world.game).alerts.at(0).message,
            "\nTheo feels like a proposal now is too soon and would like to spend more time together.\n\nIdeally, Theo "
            "would like to get engaged in 1 week(s)");
  world.change([](Matches& partner) { partner.timeToPropose = 30; });
  EXPECT_EQ(mainAction(world.game).go->segue, "goToEngagementRing");
  EXPECT_EQ(propose(world.game, 5).result, Result::noCash);
  EXPECT_TRUE(propose(world.game, 3).done());
  EXPECT_DOUBLE_EQ(world.state.totalCashAvailable, 5'000);
  EXPECT_EQ(world.state.saveRingImage, "ring4.png");
  EXPECT_DOUBLE_EQ(world.partner().relationshipStatus, 100);
  EXPECT_TRUE(propose(world.game, 0).alerts.empty()) << "one ring is enough";
}

TEST(Engagement, WithoutAPrenupTheFortuneComesInAtOnce) {
  HomeWorld world(love::engaged, 75);
  world.change([](Matches& partner) { partner.timeToPropose = 21; });
  EXPECT_EQ(mainAction(world.game).result, Result::refused) << "31 weeks are not more than 31";
  world.change([](Matches& partner) { partner.timeToPropose = 20; });
  EXPECT_EQ(mainAction(world.game).result, Result::asked);
  wed(world.game, false);
  EXPECT_EQ(world.state.weddingWeek, 40);
  EXPECT_DOUBLE_EQ(world.state.totalCashAvailable, 30'000 + 1'750 * 13 * 7 - 25'000);
  EXPECT_EQ(world.state.signPrenup, 0);
  EXPECT_EQ(world.partner().relationshipState, love::married);
}

TEST(Engagement, ABabyComesWithTheSevens) {
  for (const auto& [luck, title] : std::initializer_list<std::pair<int64_t, const char*>>{{0, "🎉 Pregnancy Test 🎉"},
                                                                                          {7, "🎉 Pregnancy Test 🎉"},
                                                                                          {63, "🎉 Pregnancy Test 🎉"},
                                                                                          {9, "Rejected"},
                                                                                          {8, "Pregnancy Test"}}) {
    HomeWorld world(love::married);
    world.change([](Matches& partner) { partner.matchImage = "woman3.png"; });
    world.random.integerIs(0, 100, luck);
    EXPECT_EQ(mainAction(world.game).alerts.at(0).title, title) << luck;
    EXPECT_EQ(world.partner().timeToBirth, luck % 7 == 0 ? 37 : -1) << luck;
    EXPECT_EQ(world.state.totalEnergyAvailable, 5);
  }
}

TEST(RelationshipEvents, AWeekWearsAway) {
  HomeWorld world(love::married, 50);
  world.change([](Matches& partner) { partner.timeToBirth = 2; });
  world.random.integerIs(0, 10, 4);
  runRelationshipEvents(world.game);
  EXPECT_DOUBLE_EQ(world.partner().relationshipStatus, 50 - 0.45 - 1);
  world.random.integerIs(0, 10, 4);
  runRelationshipEvents(world.game);
  EXPECT_DOUBLE_EQ(world.partner().relationshipStatus, 50 - 0.45 - 1 - 0.45) << "the last week is an easy one";
}

TEST(RelationshipEvents, AChildIsBornAndTheWorkBegins) {
  HomeWorld world(love::married, 50);
  world.change([](Matches& partner) { partner.timeToBirth = 0; });
  world.random.integerIs(0, 1, 1).integerIs(3, 10, 6).doubleIs(75, 250, 120).integerIs(1, 6, 4);
  for (int64_t trait = 1; trait <= 5; ++trait) world.random.integerIs(-10, 10, trait);
  world.random.integerIs(100, 135, 120).doubleIs(0.25, 1.25, 1).integerIs(65, 90, 80);
  world.random.integerIs(5, 25, 20).integerIs(0, 10, 0);
  runRelationshipEvents(world.game);
  const Child& child = world.state.saveAllChildList[0];
  EXPECT_EQ(child.relationship, "Daughter");
  EXPECT_EQ(child.imageString, "femalechildw4.png");
  EXPECT_EQ(child.songWriting, 1);
  EXPECT_EQ(child.charisma, 5);
  EXPECT_EQ(world.state.childEnergyCost, 6);
  EXPECT_EQ(world.partner().timeToBirth, -1);
  EXPECT_EQ(world.partner().maintenance, 65);
  EXPECT_DOUBLE_EQ(world.partner().relationshipStatus, 50 - 0.65);
}

TEST(RelationshipEvents, WhatIsBelowZeroEnds) {
  HomeWorld world(love::dating, 0.44);
  world.random.integerIs(0, 24, 1);
  world.chirpIsDrawn();
  EXPECT_EQ(runRelationshipEvents(world.game).alerts.at(0).title, "MARA VOSS!🤬");
  EXPECT_EQ(world.state.saveAllChirpList[0].message, "💔 " + std::string(breakupLines[1]) + " @MaraVoss");
  EXPECT_EQ(world.partner().relationshipState, love::ended);
  EXPECT_TRUE(runRelationshipEvents(world.game).alerts.empty());
}

}  // namespace
}  // namespace backbeat
