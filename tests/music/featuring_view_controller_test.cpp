#include "music/screens/featuring_view_controller.h"

#include <gtest/gtest.h>

#include "core/view_find.h"
#include "music/guests.h"
#include "music/screens/change_names_view_controllers.h"
#include "support/world.h"

namespace backbeat {
namespace {

TEST(Featuring, ThreeGuestsAreEnoughAndStarsAskForSkill) {
  World world;
  SignedArtist artist;
  artist.name = "Nova";
  artist.artistId = 7;
  artist.underContract = true;
  world.state.saveAllSignedArtistList.append(artist);
  world.state.songWriting = 9;  // (4 + 9 + 9) / 6: a skill rating of 3
  world.state.contractFeatureDiscount = 0.5;
  FeaturingViewController screen(world.game);
  screen.open();
  const std::vector<int64_t>& selected = world.game.launch.selectedFeaturedArtists;

  EXPECT_EQ(screen.act({"add:5", ""}).alerts.size(), 1u) << "asks for 5";
  screen.act({"add:4", ""});
  screen.act({"add:57", ""});
  screen.act({"add:58", ""});  // nobody
  screen.act({"add:1", ""});
  EXPECT_EQ(selected, (std::vector<int64_t>{4, 57, 1}));
  EXPECT_EQ(screen.act({"add:2", ""}).alerts.at(0).title, "🎤 Featured Limit Reached 🎤");
  screen.act({"add:1", ""});
  EXPECT_EQ(selected, (std::vector<int64_t>{4, 57})) << "a second press lets a guest go";

  std::vector<Row> rows = rowsOf(screen.view());
  ASSERT_EQ(rows.size(), 25u);
  EXPECT_EQ(rows[0].title, "Nova");
  EXPECT_EQ(rows[0].note, "Added");
  EXPECT_EQ(rows[1].price->dollars, 1'250);
  EXPECT_EQ(rows[4].tone, Tone::plain);
  EXPECT_EQ(rows[5].tone, Tone::locked);
  world.state.saveAllSignedArtistList.update(0, [](SignedArtist& dropped) { dropped.underContract = false; });
  FeaturingViewController later(world.game);
  later.open();
  EXPECT_EQ(selected, (std::vector<int64_t>{4})) << "who left the label is not on the song";
  EXPECT_EQ(rowsOf(later.view())[3].note, "Already Added");

  world.state.saveAllSignedArtistList.update(0, [](SignedArtist& back) { back.underContract = true; });
  EXPECT_EQ(screen.act({"changeName:57", ""}).alerts.at(0).title, "🎤 Signed Artist🎤");
  EXPECT_EQ(screen.act({"changeName:4", ""}).go->argument, "4");
}

TEST(Featuring, ANewNameIsTrimmedAndNotEmpty) {
  World world;
  world.settle();
  ChangeFeaturedArtistNameViewController screen(world.game, 4);
  screen.open();
  screen.act({"name", " \n"});
  EXPECT_FALSE(screen.act({"saveButton", ""}).alerts.empty());
  screen.act({"name", "  Aunt May  "});
  EXPECT_TRUE(screen.act({"saveButton", ""}).go.has_value());
  EXPECT_EQ(guestTable(world.state)[3].name, "Aunt May");
  ChangeCameoNamesViewController cameos(world.game, -1);
  EXPECT_EQ(rowsOf(cameos.view()).size(), 16u);
  EXPECT_EQ(cameos.act({"person:3", ""}).go->segue, "goToChangeCameoNames");
}

}  // namespace
}  // namespace backbeat
