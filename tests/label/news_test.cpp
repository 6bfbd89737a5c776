#include "label/news.h"

#include "label/builders.h"
#include "label/departments.h"
#include "support/dates.h"
#include "support/world.h"

namespace backbeat {
namespace {

TEST(LabelNews, TellsOfTheFirstSigningInItsWeekAlone) {
  World world;
  foundLabel(world.state);
  setDate(world.state, 60);
  addSignedArtist(world.state, "Juno Hale", 40);
  std::vector<News> news;
  for (const int64_t week : {59, 60, 61}) {
    world.game.turn.before.absoluteWeek = week;
    addLabelNews(world.game, news);
    if (week == 60) addSignedArtist(world.state, "Lil Ember", 40);
  }
  ASSERT_EQ(news.size(), 1u);
  EXPECT_EQ(news[0].headline, "Juno Hale signed with you");
}

TEST(LabelNeeds, AnEmptyLabelAndUnhappyStaffWait) {
  World world;
  std::vector<Need> needs;
  addLabelNeeds(world.game, needs);
  EXPECT_TRUE(needs.empty()) << "without a label nobody waits";
  foundLabel(world.state);
  addLabelNeeds(world.game, needs);
  for (int i = 0; i < 3; ++i) addEmployee(world.state, department::sales, 40);
  addLabelNeeds(world.game, needs);
  ASSERT_EQ(needs.size(), 1u) << "staff that is content waits for nothing";
  EXPECT_EQ(needs[0].title, "Kite House has no staff");
  for (const size_t i : {0u, 2u}) {
    world.state.saveAllEmployeeList.update(i, [](Employee& employee) { employee.employeeMorale = 34.9; });
  }
  addLabelNeeds(world.game, needs);
  ASSERT_EQ(needs.size(), 2u);
  EXPECT_EQ(needs[1].title, "2 of your staff are unhappy");
}

}  // namespace
}  // namespace backbeat
