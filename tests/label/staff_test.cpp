#include "label/staff.h"

#include "career/ledger.h"
#include "label/builders.h"
#include "label/hiring.h"
#include "label/weekly_label_updates.h"
#include "support/world.h"

namespace backbeat {
namespace {

void setTraits(GameState& state, int64_t level) {
  state.businessTrait1 = state.businessTrait2 = state.businessTrait3 = state.businessTrait4 = state.businessTrait5 =
      level;
}

Candidate candidateRated(int64_t rating) { return {.energy = 60, .morale = 70, .rating = rating, .salary = 60'000}; }

/// An employee's week that begins with these levels.
struct Week {
  double energy;
  double morale;
  int64_t rating = 50;
  int64_t burn = 6;
};

void work(World& world, const Week& week) {
  const int64_t id = addEmployee(world.state, department::legal, week.rating);
  const size_t at = world.state.saveAllEmployeeList.size() - 1;
  EXPECT_EQ(world.state.saveAllEmployeeList[at].employeeId, id);
  world.state.saveAllEmployeeList.update(at, [&](Employee& employee) {
    employee.employeeEnergy = week.energy;
    employee.employeeMorale = week.morale;
    employee.employeeBurnRate = week.burn;
  });
}

TEST(Hiring, CandidatesFollowFromTheHeadOfTheLabel) {
  World world;
  setTraits(world.state, 45);
  world.state.studioConsole = 86;  // (450 + 90) / 6
  world.random.integerIs(1, 5, 2);
  world.random.integerIs(50, 100, 61).integerIs(50, 100, 72).integerIs(1, 41, 40).integerIs(40, 90, 86);
  world.random.integerIs(9, 15, 11).integerIs(0, 4, 3).integerIs(4, 8, 8);
  world.random.integerIs(50, 100, 50).integerIs(50, 100, 100).integerIs(1, 41, 1).integerIs(40, 90, 85);
  world.random.integerIs(9, 15, 15).integerIs(0, 4, 0).integerIs(4, 8, 4);
  const std::vector<Candidate> candidates = generateCandidates(world.game);
  ASSERT_EQ(candidates.size(), 2u);
  EXPECT_EQ(candidates[0].energy, 61);
  EXPECT_EQ(candidates[0].morale, 72);
  EXPECT_EQ(candidates[0].portrait, 40);
  EXPECT_EQ(candidates[0].salary, 86 * 1'100 + 15'000 + 12'500);
  EXPECT_EQ(candidates[0].department, department::publicity);
  EXPECT_EQ(candidates[0].burnRate, 8);
  EXPECT_EQ(candidates[1].salary, 85 * 1'500 + 15'000) << "a star is paid from 86 on";
}

TEST(Hiring, TheBoundsOfCandidatesStepWithTheTraits) {
  struct Case {
    int64_t traits, studio, most, lowest, best;
  };
  // A studio's five parts come to at least 4 beside the console.
  for (const Case& each : {Case{1, 4, 1, 1, 2}, Case{11, 10, 2, 1, 20}, Case{11, 16, 2, 5, 21}, Case{21, 20, 3, 10, 38},
                           Case{56, 90, 1, 50, 108}, Case{110, 110, 1, 1, 201}}) {
    World world;
    setTraits(world.state, each.traits);
    world.state.studioConsole = each.studio - 4;
    world.random.integerIs(1, each.most, 1).integerIs(50, 100, 50).integerIs(50, 100, 50).integerIs(1, 41, 1);
    world.random.integerIs(each.lowest, each.best, each.lowest).integerIs(9, 15, 9).integerIs(0, 4, 0);
    world.random.integerIs(4, 8, 4);
    generateCandidates(world.game);
  }
}

TEST(Hiring, TakesADeskAndStandsInTheLedger) {
  World world;
  GameState& state = world.state;
  foundLabel(state);
  state.officeCapacity = 1;
  world.settle();
  EXPECT_TRUE(hireEmployee(world.game, candidateRated(104)).done());
  EXPECT_EQ(state.saveAllEmployeeList[0].employeeRating, 104) << "business traits can attract more than a hundred";
  EXPECT_EQ(state.saveAllWeeklyLineItems[0].typeOfExpense, 10'001);
  EXPECT_DOUBLE_EQ(state.saveAllWeeklyLineItems[0].amount, 1'153);
  EXPECT_EQ(hireEmployee(world.game, candidateRated(9)).result, Result::refused);
  state.officeCapacity = 5;
  state.employeeId = expense::lastLabelCost;
  world.settle();
  EXPECT_EQ(hireEmployee(world.game, candidateRated(9)).result, Result::refused) << "the next code is the shop's";
}

TEST(Staff, TheLastOneOfADepartmentStaysWhileThereAreArtists) {
  World world;
  foundLabel(world.state);
  const int64_t lawyer = addEmployee(world.state, department::legal, 40);
  const int64_t artist = addSignedArtist(world.state, "Juno Hale", 30);
  world.state.totalCashAvailable = 9'223;
  world.settle();
  EXPECT_EQ(askToFire(world.state, lawyer, {}).alerts.at(0).title, "🗂 Role Needed 🗂");
  EXPECT_EQ(fireEmployee(world.game, lawyer).result, Result::refused);
  world.state.saveAllSignedArtistList.update(static_cast<size_t>(artist - 1),
                                             [](SignedArtist& dropped) { dropped.underContract = false; });
  world.settle();
  EXPECT_EQ(askToFire(world.state, lawyer, {}).result, Result::asked);
  EXPECT_EQ(fireEmployee(world.game, lawyer).result, Result::noCash) << "eight weeks at $1,153";
}

TEST(Staff, MotivatingBurnsEnergyWithOrWithoutPerks) {
  World world;
  foundLabel(world.state);
  const int64_t id = addEmployee(world.state, department::legal, 40);
  world.state.businessTrait1 = 42;
  world.state.labelEnergyBoost = 30;
  world.state.totalEnergyAvailable = 11;
  world.settle();
  EXPECT_TRUE(motivateEmployee(world.game, id).done());
  EXPECT_DOUBLE_EQ(world.state.saveAllEmployeeList[0].employeeEnergy, 105) << "past a hundred until the week ends";
  EXPECT_EQ(world.state.totalEnergyAvailable, 5);
  EXPECT_EQ(motivateEmployee(world.game, id).result, Result::noEnergy);
}

TEST(StaffWeek, BurnsRecoversAndThenLooksAtTheHappiness) {
  World world;
  foundLabel(world.state);
  world.state.labelEnergyBoost = 2;
  world.state.labelMoraleBoost = 1;
  work(world, {.energy = 60, .morale = 60});             // 56 and 58
  work(world, {.energy = 53, .morale = 60});             // 49: tired, and less happy
  work(world, {.energy = 90, .morale = 60});             // 86: fresh, and happier
  work(world, {.energy = 2, .morale = 1, .rating = 0});  // nothing left of either, and one less
  work(world, {.energy = 120, .morale = 120, .rating = 99});
  work(world, {.energy = 60, .morale = 90, .rating = 104});
  world.settle();
  world.random.integerIs(0, 10, 5).integerIs(0, 25, 5).integerIs(0, 25, 5);
  updateEmployeesWeekly(world.game);
  const RecordList<Employee>& staff = world.state.saveAllEmployeeList;
  const auto morale = [&](size_t i) { return staff[i].employeeMorale; };
  EXPECT_DOUBLE_EQ(staff[0].employeeEnergy, 56);
  EXPECT_DOUBLE_EQ(morale(0), 58);
  EXPECT_DOUBLE_EQ(morale(1), 57);
  EXPECT_DOUBLE_EQ(morale(2), 59);
  EXPECT_DOUBLE_EQ(staff[3].employeeEnergy, 0);
  EXPECT_DOUBLE_EQ(morale(3), -1) << "below its bounds until the next week";
  EXPECT_EQ(staff[3].employeeRating, 0);
  EXPECT_DOUBLE_EQ(staff[4].employeeEnergy, 100);
  EXPECT_DOUBLE_EQ(morale(4), 101);
  EXPECT_EQ(staff[4].employeeRating, 100);
  EXPECT_EQ(staff[5].employeeRating, 104) << "what is past a hundred stays there";
}

TEST(StaffWeek, MoreThanThreeArtistsForEachWearThemOutFaster) {
  World world;
  foundLabel(world.state);
  work(world, {.energy = 100, .morale = 70, .burn = 6});
  for (int i = 0; i < 3; ++i) addSignedArtist(world.state, "Artist", 20);
  updateEmployeesWeekly(world.game);
  EXPECT_DOUBLE_EQ(world.state.saveAllEmployeeList[0].employeeEnergy, 94);
  for (int i = 0; i < 4; ++i) addSignedArtist(world.state, "Artist", 20);
  world.settle();
  updateEmployeesWeekly(world.game);
  EXPECT_DOUBLE_EQ(world.state.saveAllEmployeeList[0].employeeEnergy, 94 - 7.0 / 3 * 6);
}

}  // namespace
}  // namespace backbeat
