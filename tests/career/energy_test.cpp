#include "career/energy.h"

#include "career/job_board.h"
#include "career/screens/energy_transparency_view_controller.h"
#include "core/view_find.h"
#include "support/world.h"

namespace backbeat {
namespace {

WeeklyLineItem boost(int64_t typeOfExpense, int64_t energyBoost) {
  WeeklyLineItem item;
  item.typeOfExpense = typeOfExpense;
  item.energyBoost = energyBoost;
  return item;
}

using Lines = std::vector<std::pair<std::string, std::string>>;

Lines linesOf(World& world) {
  Lines lines;
  EnergyTransparencyViewController screen(world.game);
  for (const Row& row : rowsOf(screen.view())) lines.emplace_back(row.title, row.value);
  return lines;
}

TEST(Energy, RefillsToTheCeilingLessDutiesAndKeepsWhatLiesAbove) {
  World world;
  GameState& state = world.state;
  state.totalEnergyAvailable = 12;
  state.onTourEnergyCost = 20;
  state.merchEnergyCost = 5;
  state.childEnergyCost = 7;
  world.settle();
  EXPECT_EQ(nextWeeksEnergy(state), 68);
  applyWeeklyEnergy(world.game);
  EXPECT_EQ(state.totalEnergyAvailable, 68);
  world.expectSaved();

  state.totalEnergyAvailable = 150;
  applyWeeklyEnergy(world.game);
  EXPECT_EQ(state.totalEnergyAvailable, 118) << "energy above the ceiling is not cut back";

  state.totalEnergyAvailable = 0;
  state.onTourEnergyCost = 200;
  world.settle();
  applyWeeklyEnergy(world.game);
  EXPECT_EQ(state.totalEnergyAvailable, 0);
}

TEST(Energy, NextWeekIsForetoldAsTheTurnWillHaveIt) {
  for (const int64_t weeksLeft : {0, 1, 2}) {
    World world;
    takeJob(world.game, {{"SERVER", 15, 400}, weeksLeft});
    const int64_t foretold = nextWeeksEnergy(world.state);
    advanceJobContract(world.game);
    applyWeeklyEnergy(world.game);
    EXPECT_EQ(foretold, world.state.totalEnergyAvailable) << weeksLeft;
  }
}

TEST(Energy, TheAccountTellsOnlyLinesWithAValue) {
  World world;
  GameState& state = world.state;
  EXPECT_EQ(linesOf(world), Lines());

  state.yearNumber = 2026;
  state.childEnergyCost = 6;  // without a child it is not told
  state.weeklyEnergyCost = 10;
  state.weeklyJobContractRemaining = 1;
  state.openLabelEnergyCost = 8;
  state.annualCheckupTotal = -4;
  state.energyLossExDrama = 2;
  for (const WeeklyLineItem& item : {boost(0, 10), boost(1, 5), boost(7027, 3), boost(8000, 50), boost(10, 70)}) {
    state.saveAllWeeklyLineItems.append(item);
  }
  Matches ex;
  ex.energyBonus = 9;
  ex.relationshipState = -1;
  state.saveAllMatchesList.append(ex);
  Matches partner;
  partner.energyBonus = 7;
  partner.relationshipState = 2;
  state.saveAllMatchesList.append(partner);
  EXPECT_EQ(linesOf(world), (Lines{{"Job (1 week left) ", "-10"},
                                   {"Record Label ", "-8"},
                                   {"Aging (-1/yr) ", "-3"},
                                   {"Annual Checkup ", "-4"},
                                   {"Breakup Drama ", "-2"},
                                   {"Lifestyle ", "+18"},
                                   {"Relationship ", "+7"}}));
}

TEST(Energy, AnHeirAgesSinceTheTakeover) {
  World world;
  GameState& state = world.state;
  state.yearNumber = 2060;
  state.ageAtTakeover = 2058;
  state.saveAllChildList.append(Child());
  state.childEnergyCost = 6;
  state.weeklyEnergyCost = 8;
  state.weeklyJobContractRemaining = 3;
  EXPECT_EQ(linesOf(world), (Lines{{"Children ", "-6"}, {"Job (3 weeks left) ", "-8"}, {"Aging (-1/yr) ", "-37"}}));
  state.saveAllLegacyList.append(Legacy());
  EXPECT_EQ(linesOf(world).back().second, "-2");
  state.ageAtTakeover = 0;
  EXPECT_EQ(linesOf(world).back().second, "-37");
}

}  // namespace
}  // namespace backbeat
