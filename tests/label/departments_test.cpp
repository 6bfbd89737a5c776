#include "label/departments.h"

#include "label/builders.h"
#include "label/screens/label_detail_view_controller.h"
#include "label/staff.h"
#include "support/world.h"

namespace backbeat {
namespace {

TEST(Departments, RateWithWhatThePlayerBringsAndTheWeakestCountsTwice) {
  World world;
  GameState& state = world.state;
  foundLabel(state);
  state.businessTrait5 = 10;
  state.businessTrait3 = 31;
  state.studioConsole = 16;  // a studio of 20
  addEmployee(state, department::sales, 80);
  addEmployee(state, department::legal, 60);
  addEmployee(state, department::legal, 71);
  addEmployee(state, department::production, 100);
  addEmployee(state, department::publicity, 1'000);
  state.saveAllEmployeeList.update(4, [](Employee& employee) { employee.employeeDepartmentCode = 9; });

  const LabelRatings label = departmentRatings(state);
  EXPECT_EQ(label.departments[department::sales].studioRating, 50);
  EXPECT_EQ(label.departments[department::legal].rating, 65);
  EXPECT_EQ(label.departments[department::legal].studioRating, (131 + 62) / 3);
  EXPECT_EQ(label.departments[department::production].studioRating, 60) << "the studio counts once";
  EXPECT_EQ(label.departments[department::publicity].studioRating, 0) << "nobody is there to use a trait";
  EXPECT_EQ(label.overall, (50 + 64 + 60 + 0 + 0 + 0) / 6);
}

TEST(Departments, ABonusFollowsWhenTheLabelIsVisitedAndOutlivesItsStaff) {
  World world;
  GameState& state = world.state;
  foundLabel(state);
  state.businessTrait1 = state.businessTrait2 = state.businessTrait3 = state.businessTrait4 = state.businessTrait5 = 45;
  state.studioConsole = 86;  // a studio of 90
  state.totalCashAvailable = 10'000;
  for (int64_t code = 0; code < 5; ++code) addEmployee(state, code, 89);
  const int64_t seller = state.employeeId;
  world.settle();
  EXPECT_DOUBLE_EQ(state.labelRevenueBonus, 0) << "hired and not yet at work";
  LabelDetailViewController home(world.game);
  home.open();
  EXPECT_DOUBLE_EQ(state.labelArtistHappinessBonus, 0.445);
  EXPECT_EQ(state.labelNegotiationBonus, 8);
  EXPECT_EQ(state.labelViralityBoost, 16);
  EXPECT_EQ(state.labelMarketingBoost, 24);
  EXPECT_DOUBLE_EQ(state.labelRevenueBonus, 12);

  state.saveAllEmployeeList.eraseIf(
      [](const Employee& one) { return one.employeeDepartmentCode == department::legal; });
  world.settle();
  EXPECT_TRUE(fireEmployee(world.game, seller).done());
  EXPECT_DOUBLE_EQ(state.labelRevenueBonus, 0);
  EXPECT_EQ(state.labelNegotiationBonus, 8) << "only the last to be let go takes a bonus along";
  EXPECT_DOUBLE_EQ(state.totalCashAvailable, 10'000 - 9'224);
  EXPECT_EQ(state.saveAllWeeklyLineItems.size(), 4u);
  EXPECT_DOUBLE_EQ(state.totalRecordLabelCost, 0) << "severance is no cost of the label";
}

}  // namespace
}  // namespace backbeat
