#include "music/album_release.h"

#include <gtest/gtest.h>

#include "core/view_find.h"
#include "music/album_creation.h"
#include "music/builders.h"
#include "music/marketing_plans.h"
#include "music/screens/add_to_album_view_controller.h"
#include "music/screens/music_view_controller.h"
#include "music/screens/set_album_marketing_view_controller.h"
#include "music/screens/song_detail_view_controller.h"
#include "music/song_creation.h"
#include "support/world.h"

namespace backbeat {
namespace {

Album albumInProduction(int64_t albumId, const std::string& title, int64_t songCount) {
  Album album = releasedAlbum(albumId, title);
  album.isReleased = false;
  album.songCount = songCount;
  return album;
}

Song songOn(const Album& album, int64_t songId, double marketing) {
  Song song = songInProduction(songId, "Song " + std::to_string(songId));
  song.album = album.title;
  song.albumId = album.albumId;
  song.marketingScore = marketing;
  return song;
}

std::string titleOfAlert(const Outcome& outcome) { return outcome.alerts.empty() ? "" : outcome.alerts.front().title; }

ContractLabel runningDeal() {
  ContractLabel contract;
  contract.labelPercentageRate = 0.25;
  return contract;
}

TEST(AlbumCreation, ATitleIsNeededOnceAndWithoutBrackets) {
  World world;
  world.state.saveAllAlbumList.append(releasedAlbum(7, "Blue Hour"));
  for (const char* title : {"", " \n ", " bLUE hour "}) {
    EXPECT_EQ(titleOfAlert(createAlbum(world.game, title, "sleeve Kite")), "🔥 Enter a Title 🔥") << title;
  }
  EXPECT_EQ(titleOfAlert(createAlbum(world.game, "Nights (Live)", "sleeve Kite")), "（ Parenthesis )");
  EXPECT_EQ(world.state.albumId, 0);
  EXPECT_EQ(world.state.saveAllAlbumList.size(), 1u);
  EXPECT_TRUE(world.state.saveAllAlbumCovers.empty());
}

TEST(AlbumCreation, TakesTheSecondOfThreeNumbersAndItsCover) {
  World world;
  world.state.albumId = 40;
  world.settle();
  createAlbum(world.game, "  Blue Hour ", "sleeve Kite");
  const Album& album = world.state.saveAllAlbumList[0];
  EXPECT_EQ(album.title, "Blue Hour");
  EXPECT_EQ(album.albumId, 41);
  EXPECT_EQ(world.state.albumId, 42);
  EXPECT_DOUBLE_EQ(album.price, 3.99);
  EXPECT_DOUBLE_EQ(album.marketingScore, 5);
  ASSERT_EQ(world.state.saveAllAlbumCovers.size(), 1u);
  EXPECT_EQ(world.state.saveAllAlbumCovers[0], (AlbumCover{41, "sleeve Kite"}));
}

TEST(AlbumCreation, ContractTermsReplaceAndLabelMarketingAdds) {
  World world;
  world.state.underContract = 1;
  world.state.contractMarketingBoost = 30;
  world.state.contractAlbumPricing = 8.5;
  world.state.isLabelLaunched = 1;
  world.state.labelMarketingBoost = 4;
  createAlbum(world.game, "No record", "");
  world.state.saveAllContractLabelList.append(runningDeal());
  createAlbum(world.game, "Signed", "");
  world.state.contractAlbumPricing = 0;
  createAlbum(world.game, "Free of price", "");

  const RecordList<Album>& albums = world.state.saveAllAlbumList;
  for (const Album& album : albums) EXPECT_DOUBLE_EQ(album.marketingScore, 34) << album.title;
  EXPECT_DOUBLE_EQ(albums[0].price, 3.99) << "without a contract record share and price stay";
  EXPECT_DOUBLE_EQ(albums[0].percentageOfEarnings, 1);
  EXPECT_DOUBLE_EQ(albums[1].price, 8.5);
  EXPECT_DOUBLE_EQ(albums[1].percentageOfEarnings, 0.75);
  EXPECT_DOUBLE_EQ(albums[2].price, 3.99);
  EXPECT_DOUBLE_EQ(albums[2].percentageOfEarnings, 1);
}

TEST(AlbumPricing, OnlyUntilTheRelease) {
  World world;
  world.state.saveAllAlbumList.append(albumInProduction(7, "Blue Hour", 0));
  world.state.saveAllAlbumList.append(releasedAlbum(9, "Out"));
  world.settle();
  EXPECT_TRUE(setAlbumPricing(world.game, 7, 12.99).go);
  EXPECT_FALSE(setAlbumPricing(world.game, 9, 12.99).go);
  EXPECT_DOUBLE_EQ(world.state.saveAllAlbumList[0].price, 12.99);
  EXPECT_DOUBLE_EQ(world.state.saveAllAlbumList[1].price, 3.99);
}

TEST(Marketing, AnAlbumsPlanReachesItsSongsWhateverTheirState) {
  World world;
  const Album album = albumInProduction(7, "Blue Hour", 10);
  world.state.saveAllAlbumList.append(album);
  world.state.saveAllSongList.append(songOn(album, 12, 140));
  Song out = songOn(album, 15, 0);
  out.isReleased = true;
  world.state.saveAllSongList.append(out);
  world.state.saveAllSongList.append(songInProduction(18, "Elsewhere"));
  world.state.totalCashAvailable = 900'000;
  world.settle();
  world.random.integerIs(80, 135, 90).integerIs(80, 135, 100);  // pressed twice: the last draw counts
  selectMarketingPlan(world.random, 4);
  const SelectedPlan plan = selectMarketingPlan(world.random, 4);

  applyMarketingPlan(world.game, {MarketingTarget::Kind::album, 7}, plan);

  EXPECT_DOUBLE_EQ(world.state.saveAllAlbumList[0].marketingScore, 115);
  EXPECT_DOUBLE_EQ(world.state.saveAllSongList[0].marketingScore, 100);
  EXPECT_DOUBLE_EQ(world.state.saveAllSongList[1].marketingScore, 100) << "back in its launch phase";
  EXPECT_DOUBLE_EQ(world.state.saveAllSongList[2].marketingScore, 10);
  EXPECT_DOUBLE_EQ(world.state.totalCashAvailable, 25'000);
}

TEST(Marketing, ASongsPlanIsRefusedWithoutTheMoneyAndNoPlanChangesNothing) {
  World world;
  world.state.saveAllSongList.append(songInProduction(12, "Lone"));
  world.state.totalCashAvailable = 4'499;
  const MarketingTarget song{MarketingTarget::Kind::song, 12};
  EXPECT_EQ(titleOfAlert(applyMarketingPlan(world.game, song, {{.dollars = 4'500}, 20})), "💵 Not Enough 💵");
  EXPECT_DOUBLE_EQ(world.state.totalCashAvailable, 4'499);
  EXPECT_TRUE(applyMarketingPlan(world.game, song, {}).go) << "it closes all the same";
  EXPECT_DOUBLE_EQ(world.state.saveAllSongList[0].marketingScore, 10);
  EXPECT_TRUE(applyMarketingPlan(world.game, song, {{.dollars = 500}, 3}).go);
  EXPECT_DOUBLE_EQ(world.state.saveAllSongList[0].marketingScore, 3) << "replaced, even by less";
}

TEST(AddToAlbum, TakesOneFromSinglesWhateverTheSongWasOn) {
  World world;
  ensureSingleAlbum(world.game);
  world.state.saveAllAlbumList.update(0, [](Album& single) { single.songCount = 1; });
  Album first = albumInProduction(7, "First", 1);
  Album second = albumInProduction(9, "Second", 3);
  second.productionRating = 20;
  second.marketingScore = 8;
  world.state.saveAllAlbumList.append(first);
  world.state.saveAllAlbumList.append(second);
  world.state.saveAllSongList.append(songOn(first, 12, 10));
  world.settle();

  AddToAlbumViewController screen(world.game, 12);
  screen.act({"album:7", ""});
  EXPECT_EQ(world.state.saveAllAlbumList[1].songCount, 1) << "it is on that one already";
  screen.act({"album:9", ""});

  EXPECT_EQ(world.state.saveAllSongList[0].album, "Second");
  EXPECT_EQ(world.state.saveAllSongList[0].albumId, 9);
  EXPECT_EQ(world.state.saveAllAlbumList[0].songCount, 0);
  EXPECT_EQ(world.state.saveAllAlbumList[1].songCount, 1) << "no other album loses a song";
  EXPECT_EQ(world.state.saveAllAlbumList[2].songCount, 4);
  EXPECT_DOUBLE_EQ(world.state.saveAllAlbumList[2].productionRating, 25);  // (20 * 3 + 40) / 4
  EXPECT_DOUBLE_EQ(world.state.saveAllAlbumList[2].marketingScore, 8);
  world.expectSaved();
  addSongToAlbum(world.game, 12, "First");
  EXPECT_EQ(world.state.saveAllAlbumList[0].songCount, 0) << "never below none";
}

TEST(AddToAlbum, NeedsAnAlbumInProduction) {
  World world;
  ensureSingleAlbum(world.game);
  world.state.saveAllAlbumList.append(releasedAlbum(7, "Out"));
  world.state.saveAllSongList.append(songInProduction(12, "Lone"));
  SongDetailViewController screen(world.game, 12);
  EXPECT_EQ(titleOfAlert(screen.addToAlbumButton()), "🎧 No Unreleased Albums 🎧");
  world.state.saveAllAlbumList.append(albumInProduction(9, "Next", 0));
  EXPECT_EQ(screen.addToAlbumButton().go->segue, "goToAddToAlbum");
  addSongToAlbum(world.game, 12, "Next");
  EXPECT_EQ(titleOfAlert(screen.addToAlbumButton()), "🎧 No Unreleased Albums 🎧") << "it is on the only one";
}

TEST(AddToAlbum, AndMarketingEndWhenTheSongCameOutOnAnotherTab) {
  World world;
  ensureSingleAlbum(world.game);
  world.state.totalCashAvailable = 1'000'000;
  world.state.saveAllAlbumList.append(albumInProduction(9, "Next", 0));
  world.state.saveAllSongList.append(songInProduction(12, "Lone"));
  AddToAlbumViewController albums(world.game, 12);
  SetAlbumMarketingViewController marketing(world.game, {MarketingTarget::Kind::song, 12});
  world.random.integerIs(1, 10, 7);
  marketing.selectButton(0);
  world.state.saveAllSongList.update(0, [](Song& song) { song.isReleased = true; });
  world.settle();
  albums.act({"album:9", ""});
  marketing.act({"setMarketingButton", ""});
  EXPECT_NE(world.state.saveAllSongList[0].albumId, 9);
  EXPECT_DOUBLE_EQ(world.state.totalCashAvailable, 1'000'000);
}

TEST(AlbumRelease, TakesItsSongsAlongAndTellsTheFeed) {
  World world;
  const Album album = albumInProduction(7, "Blue Hour", 6);
  world.state.saveAllAlbumList.append(album);
  world.state.saveAllSongList.append(songOn(album, 12, 81));
  world.state.saveAllSongList.append(songOn(album, 15, 80));
  Song early = songOn(album, 18, 100);
  early.isReleased = true;
  early.releaseWeek = 2;
  world.state.saveAllSongList.append(early);
  world.state.saveAllSongList.append(songInProduction(21, "Elsewhere"));
  world.state.totalEnergyAvailable = 10;
  world.state.weekNumberForTracking = 60;
  world.state.yearNumber = 2024;
  world.state.weekNumber = 8;
  world.state.followerCount = 10'000;
  world.state.underContract = 1;
  world.state.saveAllContractLabelList.append(runningDeal());
  world.settle();
  world.random.integerIs(0, 3, 2)
      .integerIs(0, 3, 1)
      .doubleIs(0.005, 0.02, 0.01)
      .doubleIs(0.05, 0.2, 0.1)
      .doubleIs(0.05, 0.2, 0.2);

  releaseAlbum(world.game, 7);

  EXPECT_TRUE(world.state.saveAllAlbumList[0].isReleased);
  EXPECT_EQ(world.state.saveAllAlbumList[0].releaseWeek, 60);
  EXPECT_EQ(world.state.saveAllSongList[1].releaseYear, 2024);
  EXPECT_EQ(world.state.saveAllSongList[2].releaseWeek, 2) << "a song that was out keeps its date";
  EXPECT_FALSE(world.state.saveAllSongList[3].isReleased);
  EXPECT_EQ(world.state.globalMarketingCampaigns, 1);
  EXPECT_EQ(world.state.totalEnergyAvailable, 0);
  const ContractLabel& contract = world.state.saveAllContractLabelList[0];
  EXPECT_EQ(contract.songsReleased, 2);
  EXPECT_EQ(contract.lpReleased, 1);
  EXPECT_EQ(contract.epReleased, 0);
  const Chirp& chirp = world.state.saveAllChirpList[0];
  EXPECT_EQ(chirp.message, "Can't believe it's finished! My 6 studio album, Blue Hour - streamine now!");
  EXPECT_EQ(chirp.albumId, 7);
  EXPECT_EQ(chirp.likeCount, 100);
  EXPECT_EQ(chirp.commentCount, 10);
  EXPECT_EQ(chirp.reChirpCount, 20);
  releaseAlbum(world.game, 7);
  EXPECT_EQ(world.state.saveAllChirpList.size(), 1u) << "once";
}

TEST(AlbumRelease, RefusesBeforeItSpends) {
  World world;
  ensureSingleAlbum(world.game);
  world.state.saveAllAlbumList.update(0, [](Album& single) { single.songCount = 5; });
  world.state.saveAllAlbumList.append(albumInProduction(7, "Short", 2));
  world.state.saveAllAlbumList.append(albumInProduction(9, "Tired", 5));
  world.state.saveAllContractLabelList.append(runningDeal());
  world.state.underContract = 1;
  EXPECT_EQ(titleOfAlert(releaseAlbum(world.game, 7)), "🔥 Add Songs 🔥");
  world.state.totalEnergyAvailable = 9;
  const Outcome tired = releaseAlbum(world.game, 9);
  EXPECT_EQ(titleOfAlert(tired), "⚡️Not Enough Energy⚡️");
  EXPECT_EQ(tired.feedback, Feedback::energyBounce);
  EXPECT_EQ(world.state.totalEnergyAvailable, 9);
  releaseAlbum(world.game, 0);
  for (const Album& album : world.state.saveAllAlbumList) EXPECT_FALSE(album.isReleased) << album.title;
  EXPECT_EQ(world.state.saveAllContractLabelList[0].epReleased, 0);
}

TEST(MusicScreen, MakingAnAlbumLetsNoNumberGoBy) {
  World world;
  MusicViewController screen(world.game);
  EXPECT_EQ(screen.act({"createAlbumButton", ""}).go->segue, "goToCreateAnAlbum");
  EXPECT_EQ(world.state.albumId, 0);
  screen.act({"createSongButton", ""});
  EXPECT_EQ(world.state.albumId, 1);
}

TEST(MusicScreen, BringsWhatWasJustMadeIntoSight) {
  World world;
  world.state.promptToEnterName = 1;
  world.settle();
  MusicViewController screen(world.game);
  screen.act({"createAlbumButton", ""});
  EXPECT_FALSE(screen.appear().go.has_value());
  screen.act({"createAlbumButton", ""});
  createAlbum(world.game, "First Light", "");
  const Outcome way = screen.appear();
  ASSERT_TRUE(way.go.has_value());
  EXPECT_EQ(way.go->segue, "goToAlbumDetail");
  EXPECT_EQ(way.go->argument, std::to_string(world.state.saveAllAlbumList.back().albumId));
  EXPECT_FALSE(screen.appear().go.has_value());
  EXPECT_EQ(blockOf<Choice>(screen.view()).selected, 1) << "among the albums";
  world.state.saveAllSongList.append({});
  world.settle();
  screen.appear();
  EXPECT_EQ(blockOf<Choice>(screen.view()).selected, 0) << "among the songs";
}

}  // namespace
}  // namespace backbeat
