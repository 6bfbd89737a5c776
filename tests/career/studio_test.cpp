#include "career/studio.h"

#include "career/screens/my_studio_view_controller.h"
#include "core/view_find.h"
#include "support/world.h"

namespace backbeat {
namespace {

const StudioPart& booth = *studioPartNamed("studioBooth");

TEST(Studio, EachLevelCostsTheLevelSoFarTimesTheBasePrice) {
  World world;
  world.state.totalCashAvailable = 10'500;
  world.settle();
  upgradeStudio(world.game, booth);
  EXPECT_DOUBLE_EQ(world.state.totalCashAvailable, 7'000);
  upgradeStudio(world.game, booth);
  EXPECT_EQ(world.state.studioBooth, 3);
  EXPECT_DOUBLE_EQ(world.state.totalCashAvailable, 0);
  world.expectSaved();

  const Outcome refused = upgradeStudio(world.game, booth);
  ASSERT_EQ(refused.alerts.size(), 1u);
  EXPECT_EQ(refused.alerts[0].message, "\nYou don't have the funds required to purchase this upgrade.");

  world.state.studioBooth = 20;
  world.state.totalCashAvailable = 1e9;
  world.settle();
  EXPECT_EQ(upgradeStudio(world.game, booth).alerts.size(), 1u) << "a finished part gives the same answer";
  EXPECT_EQ(rowTitled(MyStudioViewController(world.game).view(), "Booth").badge, "MAX");
}

TEST(Studio, TheRatingSetsWhatADaysRentBringsAtMost) {
  World world;
  EXPECT_EQ(studioRating(world.state), 5);
  for (const auto& [rating, ceiling] : std::vector<std::pair<int64_t, int64_t>>{
           {5, 50}, {9, 50}, {10, 100}, {29, 150}, {39, 300}, {59, 800}, {60, 1'000}, {90, 10'000}, {100, 10'000}}) {
    EXPECT_EQ(studioRentalCeiling(rating), ceiling) << rating;
  }
  EXPECT_EQ(studioRentalCeiling(101), 0);
  world.state.studioMonitors = 16;
  const View view = MyStudioViewController(world.game).view();
  EXPECT_EQ(std::get<Text>(view.blocks[1]).text,
            "Your studio has a total rating of 20 and can be rented out daily for up to $150.");
}

}  // namespace
}  // namespace backbeat
