#include <gtest/gtest.h>

#include <set>

#include "core/own_photo.h"
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

TEST(ArtistName, HasTwelvePortraitsToChooseFromAndKeepsTheChoice) {
  World world;
  world.settle();
  EnterNameViewController screen(world.game);
  screen.act({"name", "Nova"});
  std::set<std::string> seen;
  for (int press = 0; press < 12; ++press) {
    seen.insert(screen.view().picture.name);
    screen.act({"anotherPortrait", ""});
  }
  EXPECT_EQ(seen.size(), 12u);
  EXPECT_EQ(screen.view().picture.name, "Nova") << "after the last comes the first";
  screen.act({"anotherPortrait", ""});
  screen.act({"saveButton", ""});
  EXPECT_EQ(artistPicture(world.state).name, "Nova #2");
  world.state.twitterProfileImage = "portrait:99999999999999999999";
  EXPECT_EQ(artistPicture(world.state).name, "Nova");
  world.settle();
}

}  // namespace
}  // namespace backbeat
