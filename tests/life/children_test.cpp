#include <gtest/gtest.h>

#include "life/builders.h"
#include "life/child_actions.h"
#include "life/children.h"
#include "life/children_events.h"
#include "life/engagement.h"
#include "life/parenthood.h"
#include "life/parenthood_pools.h"
#include "music/builders.h"
#include "support/dates.h"
#include "support/world.h"

namespace backbeat {
namespace {

struct FamilyWorld : World {
  explicit FamilyWorld(int64_t years = 8) {
    setDate(state, 1'200);
    state.myArtistsName = "Mara Voss";
    state.totalEnergyAvailable = 100;
    addChild(state, childOf(state, "Ada", years));
    settle();
  }
  const Child& child(size_t i = 0) { return state.saveAllChildList[i]; }
  template <class Change>
  void change(Change how) {
    state.saveAllChildList.update(0, how);
    settle();
  }
  /// A week with that luck, in which nothing else is drawn.
  Outcome week(int64_t luck = 0) {
    random.integerIs(0, 51, luck);
    return weeklyChildUpdate(game);
  }
};

/// The draws behind the name of the child.
void drawTalentsAndFuture(World& world, int64_t most) {
  for (int64_t talent = 1; talent <= 5; ++talent) world.random.integerIs(-10, 10, -talent);
  world.random.integerIs(100, 135, most).doubleIs(0.25, 1.25, 1).integerIs(65, 90, 80);
}

struct AdoptionWorld : World {
  AdoptionWorld() {
    setDate(state, 1'200);
    state.totalCashAvailable = 50'000;
    addPartner(state, somebody(state, "Ines"), 3, 600);
    settle();
  }
  Child drawn() {
    random.integerIs(0, 1, 1).integerIs(0, 1, 0).integerIs(1, 6, 5).doubleIs(75, 250, 100).integerIs(3, 10, 9);
    random.integerIs(1, 5, 4).integerIs(0, 4, 2);
    drawTalentsAndFuture(*this, 130);
    return drawAdoption(game);
  }
};

TEST(Adoption, AChildIsDrawnInOrderAndJoinsForAPrice) {
  AdoptionWorld world;
  const Child child = world.drawn();
  EXPECT_EQ(child.name, adoptedGirls[2]);
  EXPECT_EQ(child.imageString, "femalechildb5.png");
  EXPECT_EQ(child.relationship, "Adopted Daughter");
  EXPECT_EQ(child.partnerName, "Ines");
  EXPECT_EQ(child.birthWeekForTracking, 1'200 - 4 * 52);
  EXPECT_EQ(child.totalEnergyMax, 126) << "less the age";
  EXPECT_EQ(child.charisma, -5);
  EXPECT_TRUE(world.state.saveAllChildList.empty());
  world.random.integerIs(0, 10, 6);
  EXPECT_TRUE(adopt(world.game, child).go);
  EXPECT_DOUBLE_EQ(world.state.totalCashAvailable, 0);
  EXPECT_EQ(world.state.childEnergyCost, 9);
  EXPECT_EQ(world.state.saveAllChildList[0].id, 1);
  EXPECT_EQ(world.state.AllCompletedAchievements, std::vector<int64_t>{211});
}

TEST(Adoption, AnotherFamilyOrNoCashKeepsTheMoney) {
  AdoptionWorld world;
  const Child child = world.drawn();
  world.random.integerIs(0, 10, 5);
  EXPECT_EQ(adopt(world.game, child).alerts.at(0).message, "\nOpal was adopted by another family! ");
  EXPECT_DOUBLE_EQ(world.state.totalCashAvailable, 50'000);
  world.state.totalCashAvailable = 49'999;
  world.settle();
  const Outcome refused = adopt(world.game, child);
  EXPECT_EQ(refused.result, Result::noCash);
  EXPECT_FALSE(refused.go) << "the screen stays";
  EXPECT_TRUE(world.state.saveAllChildList.empty());
}

TEST(Adoption, TheVisitCostsEnergy) {
  AdoptionWorld world;
  setDate(world.state, 3'000);
  world.state.totalEnergyAvailable = 26;
  world.settle();
  EXPECT_EQ(mainAction(world.game).go->segue, "goToAdoptionDetail");
  EXPECT_EQ(world.state.totalEnergyAvailable, 1);
}

TEST(ChildActions, AComplimentIsHeardHalfTheTime) {
  FamilyWorld world;
  world.random.integerIs(0, 34, 1).integerIs(0, 1, 0).integerIs(0, 34, 0).integerIs(0, 1, 1);
  EXPECT_EQ(complimentChild(world.game, 0).alerts.at(0).message, "\nYou are a great student");
  EXPECT_DOUBLE_EQ(world.child().admiration, 82);
  const Outcome heard = complimentChild(world.game, 0);
  EXPECT_EQ(heard.alerts.at(0).title, "❤️ Ada ❤️");
  EXPECT_EQ(heard.alerts.at(0).message, "\nI love your laugh\n\nAda's admiration of you grew by +1");
  EXPECT_DOUBLE_EQ(world.child().admiration, 83);
  EXPECT_EQ(world.state.totalEnergyAvailable, 96);
  world.change([](Child& child) { child.admiration = 99.5; });
  world.random.integerIs(0, 19, 0).integerIs(0, 2, 2);
  qualityTimeWithChild(world.game, 0);
  EXPECT_DOUBLE_EQ(world.child().admiration, 100) << "there is no more than all";
  EXPECT_EQ(world.state.totalEnergyAvailable, 86);
}

TEST(ChildActions, ABabyIsSungToAndNeverTheFirstSong) {
  FamilyWorld world(3);  // 156 weeks
  furnishCareer(world.state, 2, 1);
  world.state.totalEnergyAvailable = 100;
  setDate(world.state, 1'200);
  world.change([](Child& child) { child.vocals = 109; });
  const auto last = static_cast<int64_t>(world.state.saveAllSongList.size()) - 1;
  const auto sing = [&](int64_t song) -> ScriptedRandom& {
    return world.random.integerIs(0, 2, 0).integerIs(0, 2, 0).integerIs(0, last, song);
  };
  sing(0);
  EXPECT_EQ(playMusic(world.game, 0).alerts.at(0).message,
            "\nYou sang a song but your voice cracked and Ada started crying.");
  sing(1).integerIs(0, 11, 0).integerIs(0, 30, 2);
  EXPECT_NE(playMusic(world.game, 0).alerts.at(0).message.find("improved."), std::string::npos);
  EXPECT_EQ(world.child().vocals, 110);
  sing(1).integerIs(0, 11, 0).integerIs(0, 30, 2);
  EXPECT_EQ(playMusic(world.game, 0).alerts.at(0).message.find("improved."), std::string::npos);
  EXPECT_EQ(world.child().vocals, 110);
  sing(1).integerIs(0, 11, 0).integerIs(0, 30, 25);
  playMusic(world.game, 0);
  EXPECT_DOUBLE_EQ(world.child().admiration, 83);
  EXPECT_EQ(world.state.totalEnergyAvailable, 80);
}

TEST(ChildActions, AnOlderChildIsTaught) {
  FamilyWorld world(4);
  world.random.integerIs(0, 2, 2).integerIs(0, 2, 1);
  EXPECT_EQ(playMusic(world.game, 0).alerts.at(0).title, "🎤 Vocals 🎤");
  world.random.integerIs(0, 2, 1).integerIs(0, 2, 0);
  EXPECT_EQ(playMusic(world.game, 0).alerts.at(0).title, "🎶 Rhythm 🎶");
  world.random.integerIs(0, 2, 0).integerIs(0, 2, 1).integerIs(0, 59, 1).integerIs(0, 59, 4);
  EXPECT_EQ(playMusic(world.game, 0).alerts.at(0).message,
            "\nYou and Ada wrote a song together. You called it:\n\nVelvet Rivers\n\nAda became a better songwriter.");
  EXPECT_EQ(world.child().vocals, 32);
  EXPECT_EQ(world.child().rhythm, 9);
  EXPECT_EQ(world.child().songWriting, 25);
  EXPECT_DOUBLE_EQ(world.child().admiration, 83);
}

TEST(ChildActions, AbandonmentTakesHalfACeilingAndHurtsTheSiblings) {
  FamilyWorld world;
  addChild(world.state, childOf(world.state, "Milo", 6));
  Child gone = childOf(world.state, "June", 9);
  gone.typeOfRelationship = kinship::abandoned;
  gone.weeklyEnergyCost = 0;
  addChild(world.state, gone);
  world.change([&](Child& child) {
    world.state.childEnergyCost -= child.weeklyEnergyCost - 3;
    child.weeklyEnergyCost = 3;
  });
  EXPECT_EQ(askToAbandon(world.game, 0, {"yes", ""}).result, Result::asked);
  world.random.doubleIs(25, 75, 30);
  abandonChild(world.game, 0);
  EXPECT_EQ(world.state.childEnergyCost, 7);
  EXPECT_EQ(world.state.totalEnergyMax, 99);
  EXPECT_EQ(world.state.childAbandonmentEnergyLoss, 1);
  EXPECT_EQ(world.state.totalEnergyAvailable, 50);
  EXPECT_EQ(world.child().relationship, "Abandoned");
  EXPECT_DOUBLE_EQ(world.child(1).admiration, 52);
  EXPECT_DOUBLE_EQ(world.child(2).admiration, 82) << "who has gone does not hear of it";
  EXPECT_TRUE(complimentChild(world.game, 0).alerts.empty());
  world.state.totalEnergyAvailable = 49;
  world.settle();
  EXPECT_EQ(askToAbandon(world.game, 1, {"yes", ""}).result, Result::noEnergy);
}

TEST(ChildrenEvents, WhoLooksUpToAStarTrainsAndIsFollowed) {
  FamilyWorld world;
  world.change([](Child& child) {
    child.admiration = 75.75;
    child.charisma = 109;
  });
  world.state.totalFans = 25'000;
  world.settle();
  world.week(10);
  EXPECT_EQ(world.child().charisma, 110);
  EXPECT_DOUBLE_EQ(world.child().admiration, 75.25);
  EXPECT_EQ(world.child().followers, 0) << "25,000 are not yet a star's";
  world.state.totalFans = 25'001;
  world.settle();
  world.random.integerIs(0, 51, 20).integerIs(25, 100, 60);
  weeklyChildUpdate(world.game);
  EXPECT_EQ(world.child().rhythm, 9) << "74.75 is too little admiration";
  EXPECT_EQ(world.child().followers, 60);
}

TEST(ChildrenEvents, ATeenGetsAPictureOfTheSameFamily) {
  for (const auto& [before, pictures, after] : std::initializer_list<std::tuple<const char*, int64_t, const char*>>{
           {"malechildw6.png", 5, "maleteenw5.png"},
           {"femalechildw1.png", 6, "femaleteenw6.png"},
           {"femalechildb4.png", 10, "femaleteenb10.png"},
           {"malechild2.png", 3, "maleteen3.png"}}) {
    FamilyWorld world(13);
    world.change([&](Child& child) { child.imageString = before; });
    world.random.integerIs(0, 51, 0).integerIs(1, pictures, pictures);
    weeklyChildUpdate(world.game);
    EXPECT_EQ(world.child().imageString, after);
    world.week();
  }
}

TEST(ChildrenEvents, AtEighteenComesWorkAtNineteenTheDoor) {
  FamilyWorld world(18);
  setDate(world.state, 24 * 52 + 50);  // another year, in the week of aging
  world.change([&](Child& child) { child.birthYear = world.state.yearNumber - 18; });
  world.random.integerIs(0, 51, 0).integerIs(0, 43, 0);
  EXPECT_TRUE(weeklyChildUpdate(world.game).alerts.empty());
  EXPECT_EQ(world.child().occupation, "Bartender");
  EXPECT_EQ(world.child().totalEnergyMax, 119);
  EXPECT_EQ(world.state.childEnergyCost, 7);
  setDate(world.state, 25 * 52 + 1);
  world.settle();
  EXPECT_EQ(world.week().alerts.at(0).title, "🎓 All Grown Up 🎓");
  EXPECT_EQ(world.state.childEnergyCost, 0);
  EXPECT_DOUBLE_EQ(world.child().weeklyFinancialCost, 0);
  EXPECT_TRUE(world.week().alerts.empty()) << "once";
}

TEST(ChildrenEvents, DeathComesAtItsAge) {
  FamilyWorld world(65);
  world.change([](Child& child) {
    child.ageofDeath = 65;
    child.occupation = "";
  });
  world.random.integerIs(0, 51, 0).integerIs(0, 11, 0);
  EXPECT_EQ(weeklyChildUpdate(world.game).alerts.at(0).title, "🕊️ In Loving Memory 🕊️");
  EXPECT_EQ(world.child().typeOfRelationship, kinship::dead);
  EXPECT_EQ(world.child().causeOfDeath, "Old age");
  EXPECT_EQ(world.child().totalEnergyMax, 0);
  EXPECT_EQ(standingText(world.state, world.child()), "died at 65");
  EXPECT_TRUE(weeklyChildUpdate(world.game).alerts.empty()) << "the dead are left in peace";
}

TEST(Children, AFaceStaysWithWhoeverIsRenamedAndGrowsUp) {
  FamilyWorld world(5);
  const std::string face = portraitOf(world.state, world.child()).name;
  EXPECT_TRUE(face.starts_with("boy:"));
  renameChild(world.game, 0, "  Nova  ");
  EXPECT_EQ(world.child().name, "Nova");
  renameChild(world.game, 0, "   ");
  EXPECT_EQ(world.child().name, "Nova") << "a name is not taken away";
  EXPECT_EQ(portraitOf(world.state, world.child()).name, face);
  EXPECT_EQ(grownPortrait(world.child()), "man" + face.substr(3));
  world.change([](Child& child) { child.imageString = "malechildb2.png"; });
  EXPECT_NE(portraitOf(world.state, world.child()).name, face) << "the family shows in the face";
}

}  // namespace
}  // namespace backbeat
