#include "career/lifestyle.h"

#include "career/screens/lifestyle_choices_view_controller.h"
#include "core/view_find.h"
#include "support/world.h"

namespace backbeat {
namespace {

const LifestyleCategory& fashion = lifestyleCategories[1];

/// Presses an option and answers its question with the last button.
Outcome pressAndConfirm(Screen& screen, const std::string& id) {
  const Outcome asked = screen.act({id, ""});
  if (asked.alerts.empty()) return asked;
  return screen.act(asked.alerts.front().buttons.back().action);
}

TEST(Lifestyle, AChoiceIsConfirmedPaidAndStandsInTheLedger) {
  World world;
  world.state.totalCashAvailable = 1'600;
  world.settle();
  LifestyleChoicesViewController screen(world.game, expense::food);
  const Outcome asked = screen.act({"option:4", ""});
  ASSERT_EQ(asked.alerts.size(), 1u);
  EXPECT_EQ(asked.alerts[0].title, "HOUSE CHEF");
  EXPECT_EQ(asked.alerts[0].message,
            "DUE NOW: $1,500\n\nSelecting this option will increase your weekly expenses by $1,500 and your MAX ENERGY "
            "by +10");
  EXPECT_TRUE(world.state.saveAllWeeklyLineItems.empty()) << "asking alone changes nothing";

  screen.act(asked.alerts[0].buttons.back().action);
  EXPECT_EQ(world.state.totalEnergyMax, 110);
  EXPECT_EQ(world.state.totalEnergyAvailable, 100);
  EXPECT_DOUBLE_EQ(world.state.totalCashAvailable, 100);
  ASSERT_EQ(world.state.saveAllWeeklyLineItems.size(), 1u);
  EXPECT_TRUE(world.state.saveAllWeeklyLineItems[0].isExpense);
  EXPECT_DOUBLE_EQ(world.state.saveAllWeeklyLineItems[0].amount, 1'500);
  EXPECT_TRUE(rowTitled(screen.view(), "HOUSE CHEF").selected);

  pressAndConfirm(screen, "option:0");
  EXPECT_EQ(world.state.totalEnergyMax, 100) << "the chef's ten points go at once";
  ASSERT_EQ(world.state.saveAllWeeklyLineItems.size(), 1u);
  EXPECT_EQ(world.state.saveAllWeeklyLineItems[0].title, "JUNK FOOD");
  EXPECT_DOUBLE_EQ(world.state.totalCashAvailable, 0);

  const Outcome refused = screen.act({"option:2", ""});
  EXPECT_EQ(refused.alerts.at(0).message,
            "Selecting this option requires an initial payment of $300 which you do not currently have.");
  EXPECT_TRUE(refused.alerts.at(0).buttons.back().action.id.empty()) << "there is nothing to confirm";
  screen.act({"confirmOption:2", ""});
  EXPECT_EQ(world.state.saveAllWeeklyLineItems[0].title, "JUNK FOOD");
}

TEST(Lifestyle, FashionGivesViralityAndLeavesTheCeilingAlone) {
  World world;
  world.state.totalCashAvailable = 10'000;
  LifestyleChoicesViewController screen(world.game, expense::fashion);
  const std::string question = screen.act({"option:4", ""}).alerts.at(0).message;
  EXPECT_NE(question.find("by $5,000 and your VIRALITY by +5"), std::string::npos) << question;
  pressAndConfirm(screen, "option:4");
  pressAndConfirm(screen, "option:3");
  EXPECT_EQ(world.state.fashionViralityBonus, 3);
  EXPECT_EQ(world.state.totalEnergyMax, 100);
  EXPECT_EQ(lifestyleEntry(world.state, fashion)->title, "DESIGNER");

  pressAndConfirm(screen, "option:3");
  EXPECT_DOUBLE_EQ(world.state.totalCashAvailable, 1'000) << "the running choice can be paid again";
  world.settle();
  pressAndConfirm(screen, "clearExpense");
  EXPECT_EQ(world.state.fashionViralityBonus, 0);
  EXPECT_EQ(world.state.totalEnergyMax, 100);
  EXPECT_TRUE(world.state.saveAllWeeklyLineItems.empty());
}

TEST(Lifestyle, ClearingAsksFirstAndTellsWhenThereIsNothing) {
  World world;
  LifestyleChoicesViewController screen(world.game, expense::home);
  EXPECT_EQ(screen.view().title, "HOME");
  EXPECT_EQ(screen.act({"clearExpense", ""}).alerts.at(0).title, "No Expense Found");
  world.state.totalCashAvailable = 750;
  pressAndConfirm(screen, "option:1");
  EXPECT_EQ(world.state.totalEnergyMax, 105);
  EXPECT_EQ(screen.act({"clearExpense", ""}).alerts.at(0).title, "Remove SINGLE FAMILY Expense?");
  pressAndConfirm(screen, "clearExpense");
  EXPECT_EQ(world.state.totalEnergyMax, 100);
  EXPECT_DOUBLE_EQ(world.state.totalCashAvailable, 0) << "nothing is given back";
}

}  // namespace
}  // namespace backbeat
