#include "label/office.h"

#include "label/builders.h"
#include "label/departments.h"
#include "label/perks.h"
#include "support/world.h"
#include "turn/weekly_report.h"

namespace backbeat {
namespace {

const Booth& gold = booths[0];
const Booth& platinum = booths[1];
const Booth& diamond = booths[2];

TEST(Office, BoothsAreSoldOnlyWhileTheCountWithoutThemHoldsTheArtists) {
  World world;
  GameState& state = world.state;
  foundLabel(state);
  state.boothMax = 3;
  state.totalCashAvailable = 60'000;
  world.settle();
  for (const Booth* booth : {&gold, &platinum, &diamond}) EXPECT_TRUE(buyBooth(world.game, *booth).done());
  EXPECT_EQ(buyBooth(world.game, gold).result, Result::refused) << "no room";
  EXPECT_EQ(state.studioCapacity, 10);
  EXPECT_DOUBLE_EQ(state.totalRecordLabelCost, 32'500);
  // They count 9 together: the diamond booth with one less than it holds.
  for (int i = 0; i < 6; ++i) addSignedArtist(state, "Artist", 20);
  world.settle();
  EXPECT_EQ(sellBooth(world.game, diamond).result, Result::refused);
  EXPECT_TRUE(sellBooth(world.game, platinum).done());
  EXPECT_EQ(sellBooth(world.game, platinum).result, Result::refused) << "there is none left";
  EXPECT_TRUE(sellBooth(world.game, gold).done());
  EXPECT_EQ(sellBooth(world.game, diamond).result, Result::refused);
  EXPECT_EQ(state.studioCapacity, 7);
  EXPECT_DOUBLE_EQ(state.totalCashAvailable, 60'000 - 32'500 + 7'250);
  EXPECT_DOUBLE_EQ(state.totalRecordLabelCost, 32'500 - 7'250);

  state.totalCashAvailable = 4'999;
  state.boothMax = 1;
  world.settle();
  EXPECT_EQ(buyBooth(world.game, gold).result, Result::noCash) << "the cash is asked first";
}

TEST(Office, HasToHoldStaffAndBoothsAndNobodyAsksForTheArtists) {
  World world;
  GameState& state = world.state;
  foundLabel(state);
  for (int i = 0; i < 6; ++i) addEmployee(state, department::sales, 30);
  for (int i = 0; i < 9; ++i) addSignedArtist(state, "Artist", 20);
  state.goldBooth = 8;
  world.settle();
  EXPECT_EQ(setOffice(world.game, offices[0]).result, Result::refused);
  EXPECT_TRUE(setOffice(world.game, offices[1]).done());
  EXPECT_TRUE(setOffice(world.game, offices[1]).done()) << "where it is already";
  EXPECT_EQ(state.typeOfOffice, "COWORKING SPACE");
  EXPECT_EQ(state.officeCapacity, 15);
  EXPECT_EQ(state.boothMax, 8);
  state.goldBooth = 9;
  world.settle();
  EXPECT_EQ(setOffice(world.game, offices[1]).result, Result::refused);
}

TEST(Office, PerksAddUpAndAreChargedWithTheWeek) {
  World world;
  GameState& state = world.state;
  foundLabel(state);
  setOffice(world.game, offices[2]);
  world.settle();
  for (const OfficePerk& perk : officePerks) toggleOfficePerk(world.game, perk);
  EXPECT_DOUBLE_EQ(state.labelEnergyBoost, 6.75);
  EXPECT_DOUBLE_EQ(state.labelMoraleBoost, 3.75);
  EXPECT_DOUBLE_EQ(state.labelOfficePerkSpend, 3'020);
  EXPECT_DOUBLE_EQ(officeCosts(state), 2'500) << "without staff there is nobody to spoil";
  addEmployee(state, department::sales, 30);
  addEmployee(state, department::sales, 30);
  EXPECT_DOUBLE_EQ(standingWeeklyNet(state), -2 * 3'020 - 2'500 - 2 * 1'153);
  world.settle();
  for (const OfficePerk& perk : officePerks) toggleOfficePerk(world.game, perk);
  EXPECT_DOUBLE_EQ(state.labelOfficePerkSpend + state.labelEnergyBoost + state.labelMoraleBoost, 0);
}

}  // namespace
}  // namespace backbeat
