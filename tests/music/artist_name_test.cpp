#include <gtest/gtest.h>

#include "music/screens/enter_name_view_controller.h"
#include "support/world.h"

namespace backbeat {
namespace {

TEST(ArtistName, IsAskedForBeforeACareerStartsWithoutOne) {
  World world;
  world.settle();
  EnterNameViewController screen(world.game);
  const Outcome question = screen.act({"saveButton", ""});
  ASSERT_EQ(question.result, Result::asked);
  EXPECT_EQ(world.state.promptToEnterName, 0);
  const std::vector<AlertButton>& answers = question.alerts.at(0).buttons;

  screen.act(answers.at(1).action);
  EXPECT_EQ(answers[1].label, "Be " + world.state.myArtistsName);
  EnterNameViewController again(world.game);
  EXPECT_TRUE(again.act(answers.at(2).action).go.has_value());
  EXPECT_EQ(world.state.myArtistsName, "");
  EXPECT_EQ(world.state.promptToEnterName, 1);
}

}  // namespace
}  // namespace backbeat
