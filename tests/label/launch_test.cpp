#include "label/launch.h"

#include "career/contract_offers.h"
#include "career/ledger.h"
#include "label/builders.h"
#include "label/departments.h"
#include "music/chart.h"
#include "support/world.h"

namespace backbeat {
namespace {

BillboardSong rowOf(int64_t songId) {
  BillboardSong row;
  row.songId = songId;
  return row;
}

TEST(LabelLaunch, TakesTwoMillionsNoEnergyAndTheOfferOfOthers) {
  World world;
  world.state.totalCashAvailable = 2'000'000;
  world.state.totalEnergyAvailable = 3;
  world.game.launch.contractOfferState = 2;
  world.game.launch.contractOffer.tempCash = 90'000;
  world.settle();
  EXPECT_TRUE(launchLabel(world.game, " ", "We sing", labelLogos[0]).done());
  EXPECT_EQ(world.state.myLabelName, " ") << "texts are taken as typed";
  EXPECT_EQ(world.state.myLabelLogo, "labelOption1.png");
  EXPECT_DOUBLE_EQ(world.state.totalCashAvailable, 0);
  EXPECT_EQ(world.state.totalEnergyAvailable, 3);
  EXPECT_EQ(world.state.openLabelEnergyCost, 30);
  EXPECT_DOUBLE_EQ(world.state.totalRecordLabelCost, 0) << "the launch is no cost of the label";
  EXPECT_EQ(world.game.launch.contractOfferState, 0);

  world.game.launch.contractOfferState = 2;  // whatever brought it
  signContract(world.game);
  EXPECT_EQ(world.state.underContract, 0) << "who has a label signs with none";
}

TEST(LabelLaunch, NotByWhoHasSignedMeanwhile) {
  World world;
  world.state.totalCashAvailable = 2'000'000;
  world.state.underContract = 1;
  world.settle();
  EXPECT_EQ(launchLabel(world.game, "North", "We sing", labelLogos[0]).alerts.at(0).title, "✍️ Non Compete ✍️");
  EXPECT_EQ(world.state.isLabelLaunched, 0);
  EXPECT_DOUBLE_EQ(world.state.totalCashAvailable, 2'000'000);
}

TEST(LabelLaunch, ClosingLeavesNothingButTheShop) {
  World world;
  GameState& state = world.state;
  foundLabel(state);
  addEmployee(state, department::legal, 60);
  addSignedArtist(state, "Juno Hale", 50);
  state.saveAllCreatedArtists.append(CreatedArtist{.name = "Paper Anna"});
  state.saveAllSignedArtistWeeklySongListens.append({});
  for (const int64_t code : {expense::food, expense::firstProperty, expense::firstMerch}) {
    WeeklyLineItem item;
    item.typeOfExpense = code;
    state.saveAllWeeklyLineItems.append(item);
  }
  for (const int64_t songId : {int64_t{12}, signedArtistSongOffset + 5, featuredSongOffset + 8}) {
    state.saveAllBillboardSongList.append(rowOf(songId));
  }
  state.typeOfOffice = "WAREHOUSE";
  state.studioCapacity = 9;
  state.labelStreamingRate = 0.01;
  state.officePerk7 = 1;
  state.merchEnergyCost = 4;
  state.totalCashAvailable = 77;
  world.game.launch.selectedFeaturedArtists = {4, 51};
  world.game.launch.label.songsTakenOff[1] = 2;
  world.settle();

  closeLabel(world.game);
  EXPECT_EQ(state.isLabelLaunched, 0);
  EXPECT_EQ(state.typeOfOffice, "GARAGE");
  EXPECT_EQ(state.studioCapacity, 3);
  EXPECT_DOUBLE_EQ(state.labelStreamingRate, 0.003);
  EXPECT_EQ(state.officePerk7, 0);
  EXPECT_EQ(state.openLabelEnergyCost, 0);
  EXPECT_EQ(state.employeeId, 10'000);
  EXPECT_DOUBLE_EQ(state.totalCashAvailable, 77);
  EXPECT_TRUE(state.saveAllEmployeeList.empty() && state.saveAllSignedArtistList.empty());
  EXPECT_TRUE(state.saveAllCreatedArtists.empty() && state.saveAllSignedArtistWeeklySongListens.empty());
  EXPECT_EQ(state.saveAllWeeklyLineItems.size(), 2u) << "the shop's plan goes too, what it gives stays";
  EXPECT_EQ(state.merchEnergyCost, 4);
  ASSERT_EQ(state.saveAllBillboardSongList.size(), 2u);
  EXPECT_EQ(state.saveAllBillboardSongList[1].songId, featuredSongOffset + 8);
  EXPECT_EQ(world.game.launch.selectedFeaturedArtists, (std::vector<int64_t>{4}));
  EXPECT_EQ(addEmployee(state, department::sales, 40), 10'001) << "a new label counts anew";
  EXPECT_TRUE(world.game.launch.label.songsTakenOff.empty()) << "its first album has all its songs";
  world.settle();
}

}  // namespace
}  // namespace backbeat
