#include "music/song_creation.h"

#include <gtest/gtest.h>

#include "music/builders.h"
#include "music/guests.h"
#include "music/production_options.h"
#include "music/screens/create_a_song_view_controller.h"
#include "music/song_release.h"
#include "support/world.h"

namespace backbeat {
namespace {

/// An artist with the built-in "Single", a little money, and every talent but charisma at 1.
struct Studio : World {
  Studio() {
    state.totalCashAvailable = 50'000;
    state.charisma = 40;
    ensureSingleAlbum(game);
    draft.title = "Paper Lanterns";
    draft.finalSongWritingRating = 40;
    draft.finalMusicalityRating = 30;
    draft.finalStudioRating = 25;
  }
  /// A roll of 0 for an artist with virality 1, and luck at its least: a rating of (115 + 11.5) / 6.
  void dullRolls() { random.doubleIs(0, 1, 0).doubleIs(11.5, 23, 11.5); }
  /// The same for one who goes alone; the gift comes to nothing.
  void dullRollsAlone() {
    random.integerIs(0, 7, 1);
    dullRolls();
  }
  const Song& made() const { return state.saveAllSongList.back(); }

  SongDraft draft;
};

Album albumInProduction(int64_t albumId, const std::string& title) {
  Album album = releasedAlbum(albumId, title);
  album.isReleased = false;
  return album;
}

TEST(SongCreation, RollsForATalentedArtistWhoGoesAlone) {
  Studio studio;
  GameState& state = studio.state;
  state.songWriting = state.vocalRange = state.rhythm = state.virality = 20;
  state.fashionViralityBonus = 2;
  state.contractViralityBoost = 4;
  state.labelViralityBoost = 3;
  studio.draft.title = "  Gangster's Rest ";
  studio.draft.productionCost = 1'000;
  studio.settle();
  studio.random
      .integerIs(0, 3, 2)          // the word in the title
      .integerIs(0, 23, 7)         // the gift: (120 + 20) / 6, halved to 3
      .doubleIs(0, 22, 10)         // virality and fashion; three quarters of it: 7.5
      .doubleIs(12.25, 24.5, 20);  // no input is weaker than the mean, so luck begins at half of it

  createSong(studio.game, studio.draft);

  EXPECT_EQ(studio.made().title, "Gangster's Rest");
  EXPECT_EQ(studio.made().isExplicit, 1);
  EXPECT_DOUBLE_EQ(studio.made().viralityScore, 7.5 + 4 + 2 + 3 + 3);
  EXPECT_DOUBLE_EQ(studio.made().productionRating, 23.75);  // (30 + 30 + 30 + 25 + 7.5 + 20) / 6
  EXPECT_DOUBLE_EQ(studio.made().marketingScore, 10);
  EXPECT_EQ(studio.made().songId, 1);
  EXPECT_EQ(state.songId, 2) << "a number goes by after the song, too";
  EXPECT_EQ(state.totalCashAvailable, 49'000);
  EXPECT_EQ(state.totalEnergyAvailable, 90);
}

TEST(SongCreation, AWeakInputSetsTheFloorOfLuck) {
  ScriptedRandom random;
  SongDraft draft;
  draft.finalMusicalityRating = 60;
  draft.finalSongWritingRating = 4;
  draft.finalStudioRating = 80;
  random.doubleIs(3, 36.6, 20.11);  // writing counts 3; the mean of 60, 3, 30, 80 and 10
  EXPECT_DOUBLE_EQ(productionRoll(random, draft, 40, 10), 33.85);
}

TEST(SongCreation, GuestsLendHalfOfTheMeanAndCostWhatTheContractLeaves) {
  Studio studio;
  SignedArtist artist;
  artist.name = " Nova ";
  artist.artistId = 7;
  artist.underContract = true;
  artist.songwriting = artist.vocals = artist.rhythm = artist.charisma = artist.virality = 120;
  studio.state.saveAllSignedArtistList.append(artist);
  studio.state.contractFeatureDiscount = 0.55;
  studio.draft.guests = {5, firstSignedArtistPick + 7};  // 12,500 with rating 26 and virality 18; a free one of 116
  studio.game.launch.selectedFeaturedArtists = studio.draft.guests;
  studio.dullRolls();

  EXPECT_EQ(costToProduceSong(studio.state, studio.draft), (Price{.energy = 10, .dollars = 6'875}));
  createSong(studio.game, studio.draft);

  EXPECT_DOUBLE_EQ(studio.made().viralityScore, (9.0 + 60.0) / 2);
  EXPECT_DOUBLE_EQ(studio.made().productionRating, (13.0 + 58.0) / 2 + 21.08);
  ASSERT_EQ(studio.made().features.size(), 3u);
  EXPECT_EQ(studio.made().features[0], "");
  EXPECT_EQ(studio.made().features[2], "Nova");
  EXPECT_TRUE(studio.game.launch.selectedFeaturedArtists.empty());
}

TEST(SongCreation, AContractReplacesTheMarketingAndTheOwnLabelAddsToIt) {
  Studio studio;
  GameState& state = studio.state;
  state.underContract = 1;
  state.contractMarketingBoost = 30;
  studio.dullRollsAlone();
  createSong(studio.game, studio.draft);
  EXPECT_DOUBLE_EQ(studio.made().marketingScore, 30);
  EXPECT_DOUBLE_EQ(studio.made().percentageOfEarnings, 1) << "no record of the contract, nothing is kept";

  ContractLabel contract;
  contract.labelPercentageRate = 0.8;
  state.saveAllContractLabelList.append(contract);
  state.isLabelLaunched = 1;
  state.labelMarketingBoost = 5;
  studio.draft.title = "Second";
  studio.dullRollsAlone();
  createSong(studio.game, studio.draft);
  EXPECT_DOUBLE_EQ(studio.made().marketingScore, 35);
  EXPECT_NEAR(studio.made().percentageOfEarnings, 0.2, 1e-12);
  EXPECT_DOUBLE_EQ(studio.made().streamPayRate, 0.003);
}

TEST(SongCreation, CountsOnTheLastAlbumInProductionOfThatTitle) {
  Studio studio;
  Album first = albumInProduction(12, "Harbour");
  Album second = albumInProduction(15, "Harbour");
  second.songCount = 3;
  second.productionRating = 40;
  second.marketingScore = 10;
  studio.state.saveAllAlbumList.append(first);
  studio.state.saveAllAlbumList.append(second);
  studio.state.saveAllAlbumList.append(releasedAlbum(18, "Harbour"));
  studio.draft.album = "Harbour";
  studio.settle();
  studio.dullRollsAlone();
  createSong(studio.game, studio.draft);
  const Album& album = studio.state.saveAllAlbumList[2];
  EXPECT_EQ(studio.made().albumId, 15);
  EXPECT_EQ(album.songCount, 4);
  EXPECT_DOUBLE_EQ(album.productionRating, (40 * 3 + 21.08) / 4);
  EXPECT_DOUBLE_EQ(album.marketingScore, 11);

  studio.draft.title = "Second";
  studio.draft.album = "Gone";
  studio.dullRollsAlone();
  createSong(studio.game, studio.draft);
  EXPECT_EQ(studio.made().album, "Single");
  EXPECT_EQ(studio.made().albumId, 0);
  EXPECT_EQ(studio.state.saveAllAlbumList[0].songCount, 1);
}

TEST(SongCreation, ARefusalCostsNothing) {
  Studio studio;
  Song taken = releasedSong(12, "Café Noir");
  studio.state.saveAllSongList.append(taken);
  const GameState before = studio.state;
  SongDraft draft = studio.draft;
  draft.title = " CAFÉ NOIR\n";
  EXPECT_EQ(createSong(studio.game, draft).alerts.at(0).title, "🔥 Enter a Title 🔥");
  draft.title = " \t ";
  EXPECT_EQ(createSong(studio.game, draft).alerts.size(), 1u);
  draft.productionCost = 50'001;  // the money is asked for before the title
  EXPECT_EQ(createSong(studio.game, draft).alerts.at(0).title, "💵 Not Enough 💵");
  EXPECT_EQ(studio.state, before);
  studio.state.totalEnergyAvailable = 9;
  const Outcome tired = createSong(studio.game, draft);
  EXPECT_TRUE(tired.alerts.empty());
  EXPECT_EQ(tired.feedback, Feedback::energyBounce);
}

TEST(SongCreation, TheScreenOffersAlbumsUpToTwentySongsAndTheLabelsStudio) {
  World world;
  Album almost = albumInProduction(12, "Almost");
  almost.songCount = 19;
  Album full = albumInProduction(15, "Full");
  full.songCount = 20;
  world.state.saveAllAlbumList.append(almost);
  world.state.saveAllAlbumList.append(full);
  world.state.saveAllAlbumList.append(almost);
  world.state.underContract = 1;
  ContractLabel contract;
  contract.recordLabel = "Tall Ships";
  contract.studioScore = 70;
  world.state.saveAllContractLabelList.append(contract);
  world.random.integerIs(0, 10, 0).integerIs(0, 10, 5).integerIs(0, 10, 10).integerIs(0, 10, 3).integerIs(0, 10, 3);
  world.random.integerIs(0, 10, 3);
  CreateASongViewController screen(world.game);
  screen.open();
  EXPECT_EQ(screen.albumPicker(), (std::vector<std::string>{"Single", "Almost (19)"}));
  screen.act({"album", "1"});
  screen.act({"studio", "6"});
  screen.act({"writing", "1"});
  screen.act({"musicality", "7"});  // there is no such one
  const SongDraft draft = screen.draft();
  EXPECT_EQ(draft.album, "Almost");
  EXPECT_EQ(draft.finalStudioRating, 75);
  EXPECT_EQ(draft.finalSongWritingRating, 10);
  EXPECT_EQ(draft.finalMusicalityRating, 1);
  EXPECT_EQ(draft.productionCost, 1'125);
  EXPECT_EQ(drawProductionOptions(world.game).studio.size(), 7u);

  world.state.underContract = 0;
  world.random.integerIs(0, 10, 3).integerIs(0, 10, 3).integerIs(0, 10, 3);
  CreateASongViewController later(world.game);
  later.open();
  EXPECT_EQ(later.draft().productionCost, 1'125) << "the writer is remembered; the own studio takes the label's place";
}

TEST(SongRelease, BoostsNineTimesAndReleasesWithTheLastTenEnergy) {
  World world;
  Song song = songInProduction(12, "Polished");
  song.productionRating = 99;
  song.marketingScore = 80.5;
  world.state.saveAllSongList.append(song);
  world.state.underContract = 1;
  world.state.saveAllContractLabelList.append(ContractLabel{});
  world.state.totalEnergyAvailable = 500;
  world.state.weekNumberForTracking = 60;
  world.state.yearNumber = 2024;
  world.settle();
  boostProduction(world.game, 12);
  EXPECT_EQ(world.state.totalEnergyAvailable, 496);
  EXPECT_DOUBLE_EQ(world.state.saveAllSongList[0].productionRating, 100.5) << "nothing holds it at 100";
  boostProduction(world.game, 12);
  EXPECT_EQ(world.state.saveAllSongList[0].productionBoostCount, 1);
  for (int i = 0; i < 12; ++i) boostVirality(world.game, 12);
  EXPECT_EQ(world.state.saveAllSongList[0].viralityBoostCount, 9);
  EXPECT_DOUBLE_EQ(world.state.saveAllSongList[0].viralityScore, 9.5);
  EXPECT_EQ(world.state.totalEnergyAvailable, 496 - (17 + 19 + 21 + 22 + 24 + 26 + 28 + 29 + 31));

  world.state.totalEnergyAvailable = 9;
  EXPECT_EQ(releaseSong(world.game, 12).feedback, Feedback::energyBounce);
  world.state.totalEnergyAvailable = 10;
  releaseSong(world.game, 12);
  releaseSong(world.game, 12);
  const Song& out = world.state.saveAllSongList[0];
  EXPECT_TRUE(out.isReleased);
  EXPECT_EQ(out.releaseWeek, 60);
  EXPECT_EQ(out.releaseYear, 2024);
  EXPECT_EQ(world.state.totalEnergyAvailable, 0);
  EXPECT_EQ(world.state.globalMarketingCampaigns, 1);
  EXPECT_EQ(world.state.saveAllContractLabelList[0].songsReleased, 1);
}

TEST(Guests, TheTableRisesAndRenamingKeepsTheRest) {
  World world;
  const std::vector<FeaturedArtist> table = guestTable(world.state);
  ASSERT_EQ(table.size(), 24u);
  for (size_t i = 1; i < table.size(); ++i) {
    EXPECT_GE(table[i].cost, table[i - 1].cost);
    EXPECT_GE(table[i].minimumRating, table[i - 1].minimumRating);
    EXPECT_GT(table[i].rating, table[i - 1].rating);
  }
  ASSERT_EQ(cameoTable(world.state).size(), 16u);
  EXPECT_EQ(cameoTable(world.state).back().cost, 4'000'000);
  world.settle();
  renameGuest(world.game, 24, "Mum");
  renameGuest(world.game, 99, "Nobody");
  renameCameo(world.game, 1, "Dad");
  FeaturedArtist expected = table.back();
  expected.name = "Mum";
  EXPECT_EQ(guestTable(world.state).back(), expected);
  EXPECT_EQ(guestTable(world.state)[0], table[0]);
  EXPECT_EQ(cameoTable(world.state)[0].name, "Dad");
}

}  // namespace
}  // namespace backbeat
