#include "career/traits.h"

#include "career/screens/my_music_view_controller.h"
#include "core/view_find.h"
#include "support/world.h"

namespace backbeat {
namespace {

const Trait& vocals = *traitNamed("vocalRange");
const Trait& virality = *traitNamed("virality");
const Trait& sales = *traitNamed("businessTrait5");

TEST(Traits, ALevelIsWhatWasPaidAndViralityTakesTwiceTheEnergy) {
  World world;
  world.settle();
  world.random.integerIs(0, 9, 9).integerIs(0, 9, 8).integerIs(0, 9, 0);

  levelUpTrait(world.game, vocals);
  EXPECT_EQ(world.state.vocalRange, 2);
  EXPECT_EQ(world.state.vocalRangeEnergyCost, 5) << "the last of the ten steps is 3";
  EXPECT_EQ(world.state.totalEnergyAvailable, 98);
  world.expectSaved();

  levelUpTrait(world.game, virality);
  EXPECT_EQ(world.state.virality, 2);
  EXPECT_EQ(world.state.viralityEnergyCost, 8) << "twice a step of 2";
  EXPECT_EQ(world.state.totalEnergyAvailable, 94);

  world.state.viralityEnergyCost = 9;
  levelUpTrait(world.game, virality);
  EXPECT_EQ(world.state.virality, 4) << "half of 9, cut";
}

TEST(Traits, TheLastPressMayEndAboveTheHighestLevel) {
  World world;
  world.state.totalEnergyAvailable = 500;
  world.state.vocalRange = 109;
  world.state.vocalRangeEnergyCost = 112;
  world.random.integerIs(0, 9, 0);
  EXPECT_EQ(levelUpTrait(world.game, vocals).feedback, Feedback::success);
  EXPECT_EQ(world.state.vocalRange, 112);

  world.state.vocalRange = 110;
  const GameState before = world.state;
  EXPECT_EQ(levelUpTrait(world.game, vocals).feedback, Feedback::none);
  world.state.totalEnergyAvailable = 112;
  EXPECT_EQ(levelUpTrait(world.game, vocals).feedback, Feedback::energyBounce) << "energy is asked for before the end";
  world.state.totalEnergyAvailable = before.totalEnergyAvailable;
  EXPECT_TRUE(world.state == before);
}

TEST(Traits, BusinessTraitsAskForALabelThenEnergyThenTheirEnd) {
  World world;
  world.state.totalEnergyAvailable = 1;
  const Outcome refused = levelUpTrait(world.game, sales);
  ASSERT_EQ(refused.alerts.size(), 1u) << "the label comes before the energy";
  EXPECT_EQ(refused.alerts[0].title, "🎧 Record Label 🎧");

  world.state.isLabelLaunched = 1;
  EXPECT_EQ(levelUpTrait(world.game, sales).feedback, Feedback::energyBounce);

  world.state.totalEnergyAvailable = 10;
  world.settle();
  world.random.integerIs(0, 9, 8);
  levelUpTrait(world.game, sales);
  EXPECT_EQ(world.state.businessTrait5, 1) << "the first press only pays";
  EXPECT_EQ(world.state.businessTraitCost5, 6);
  EXPECT_EQ(world.state.totalEnergyAvailable, 8);
  world.expectSaved();

  world.state.businessTrait5 = 50;
  world.settle();
  EXPECT_EQ(levelUpTrait(world.game, sales).feedback, Feedback::none);
}

TEST(Traits, TheScreenTellsLevelCostAndWhatComesNext) {
  World world;
  world.state.virality = 110;
  world.state.charisma = 55;
  world.state.charismaEnergyCost = 57;
  MyMusicViewController screen(world.game);
  const Row charisma = rowTitled(screen.view(), "Charisma");
  EXPECT_EQ(charisma.value, "55");
  EXPECT_EQ(charisma.note, "next 57");
  EXPECT_EQ(charisma.price, (Price{57, 0}));
  EXPECT_DOUBLE_EQ(charisma.share.value_or(0), 0.5);
  EXPECT_EQ(rowTitled(screen.view(), "Virality").badge, "MAX");
  EXPECT_EQ(rowTitled(screen.view(), "Sales").tone, Tone::locked);
  EXPECT_EQ(rowTitled(screen.view(), "Sales").note, "a first step") << "which gives no level yet";

  world.random.integerIs(0, 9, 0);
  screen.act({charisma.id, ""});
  EXPECT_EQ(world.state.charisma, 57);
  screen.act({"levelUpTrait:weeklyJobIncome", ""});
  EXPECT_EQ(world.state.totalEnergyAvailable, 43);
}

}  // namespace
}  // namespace backbeat
