#include "label/album_review.h"

#include "label/builders.h"
#include "label/departments.h"
#include "support/dates.h"
#include "support/world.h"

namespace backbeat {
namespace {

/// An artist of forty in everything, whose album waits, with somebody to sell it and somebody to talk of it.
struct Session : World {
  Session() {
    setDate(state, 120);
    foundLabel(state);
    addSignedArtist(state, "Juno Hale", 40);
    state.saveAllSignedArtistList.update(0, [](SignedArtist& juno) {
      juno.weeksToCompleteAlbum = 0;
      juno.monthlyListeners = 10'000;
    });
    addEmployee(state, department::publicity, 50);
    addEmployee(state, department::sales, 60);
    state.businessTrait2 = 10;
    state.labelMarketingBoost = 3;
    state.labelViralityBoost = 4;
    state.studioConsole = 26;  // a studio of 30
    state.totalEnergyAvailable = 9;
    settle();
  }
  const SignedArtistSong& song(size_t i) const { return state.saveAllSignedArtistSongList[i]; }

  /// Everything that a review draws, with a guest on the third of eight songs.
  void script() {
    random.integerIs(0, 59, 0).integerIs(0, 59, 1).integerIs(0, 7, 2).integerIs(0, 3, 0).integerIs(0, 55, 50);
    for (int i = 0; i < 8; ++i) {
      // Writing and charisma count 30, music 40, the studio 30, the roll 30: a mean of 32.
      random.integerIs(0, 59, 2).integerIs(0, 59, i).doubleIs(0, 40, 40).doubleIs(30, 32, 32);
      random.integerIs(0, 3, 1).integerIs(10, 35, 20);
      if (i == 2) random.integerIs(0, 13, 13);
      random.integerIs(0, 3, i == 7 ? 0 : 3);
    }
    random.integerIs(30, 60, 45).doubleIs(0.05, 0.2, 0.1).doubleIs(0.1, 0.5, 0.2).doubleIs(0.1, 0.5, 0.5);
    random.integerIs(0, 4, 4).integerIs(0, 5, 1);
  }
};

TEST(AlbumReview, PutsSongsAndAnAlbumOutAndTellsTheFeed) {
  Session world;
  world.script();
  const Outcome outcome = reviewSongList(world.game, 1);
  EXPECT_EQ(outcome.go->argument, "1");
  GameState& state = world.state;
  ASSERT_EQ(state.saveAllSignedArtistSongList.size(), 8u);
  EXPECT_EQ(world.song(3).title, "Golden Shadows");
  EXPECT_DOUBLE_EQ(world.song(3).productionRating, 32);
  EXPECT_DOUBLE_EQ(world.song(3).viralityScore, 30 + 4 + 1);
  EXPECT_DOUBLE_EQ(world.song(3).marketingScore, 23);
  EXPECT_EQ(world.song(3).features, std::vector<std::string>{""});
  EXPECT_DOUBLE_EQ(world.song(2).viralityScore, 35 + 26) << "half of what the guest has";
  EXPECT_EQ(world.song(2).features, (std::vector<std::string>{"", "Tobias Flint"}));
  EXPECT_EQ(world.song(7).isExplicit, 1);
  EXPECT_EQ(world.song(6).isExplicit, 0);
  EXPECT_DOUBLE_EQ(world.song(0).streamPayRate, 0.003);
  const SignedArtistAlbum& album = state.saveAllSignedArtistAlbumList[0];
  EXPECT_EQ(album.title, "Midnight Streets");
  EXPECT_DOUBLE_EQ(album.productionRating, 32);
  EXPECT_DOUBLE_EQ(album.marketingScore, 58);
  EXPECT_EQ(state.saveAllSignedArtistList[0].weeksToCompleteAlbum, 45);
  EXPECT_EQ(state.totalEnergyAvailable, 4);
  const Chirp& chirp = state.saveAllChirpList[0];
  EXPECT_EQ(chirp.message, "Streaming today! My 1st studio album, Midnight Streets - streaming now!");
  EXPECT_EQ(chirp.artistId, 300'001);
  EXPECT_EQ(chirp.likeCount, 1'000);
  EXPECT_EQ(chirp.commentCount, 200);
  EXPECT_EQ(chirp.reChirpCount, 500);
  EXPECT_TRUE(reviewSongList(world.game, 1).alerts.empty()) << "the next one is not complete";
}

TEST(AlbumReview, WaitsForEnergyAndForTheContract) {
  Session world;
  world.state.totalEnergyAvailable = 4;
  world.settle();
  EXPECT_EQ(reviewSongList(world.game, 1).result, Result::noEnergy);
  world.state.totalEnergyAvailable = 50;
  setDate(world.state, 224);
  world.settle();
  EXPECT_FALSE(reviewSongList(world.game, 1).go) << "the contract is up";
  EXPECT_EQ(world.state.totalEnergyAvailable, 50);
  EXPECT_EQ(world.state.signedArtistAlbumId, 0);
}

TEST(AlbumReview, TwoSongsCanGoUntilTheWeekEndsAndTheAlbumIsTheMeanOfTheRest) {
  Session world;
  const int64_t album = addSignedAlbum(world.state, 1, 9, 40);
  world.state.saveAllSignedArtistSongList.update(0, [](SignedArtistSong& song) { song.productionRating = 12; });
  world.settle();
  EXPECT_TRUE(removeSong(world.game, 2).done());
  EXPECT_DOUBLE_EQ(world.state.saveAllSignedArtistAlbumList[0].productionRating, (12 + 7 * 40) / 8.0);
  EXPECT_TRUE(removeSong(world.game, 1).done());
  EXPECT_DOUBLE_EQ(world.state.saveAllSignedArtistAlbumList[0].productionRating, 40);
  EXPECT_EQ(askToRemoveSong(world.game, 3, {}).alerts.at(0).title, "❌ Limit Reached ❌ ");
  EXPECT_EQ(removeSong(world.game, 3).result, Result::refused);
  world.game.launch.label.songsTakenOff.clear();
  setDate(world.state, 121);
  world.settle();
  EXPECT_TRUE(removeSong(world.game, 3).alerts.empty()) << "it is out";
  EXPECT_EQ(world.state.saveAllSignedArtistSongList.historyOf(album).size(), 7u);
}

TEST(AlbumReview, CountsAlbumsAsPeopleDo) {
  EXPECT_EQ(ordinal(1) + ordinal(2) + ordinal(3) + ordinal(4), "1st2nd3rd4th");
  EXPECT_EQ(ordinal(11) + ordinal(12) + ordinal(13) + ordinal(21) + ordinal(112), "11th12th13th21st112th");
}

}  // namespace
}  // namespace backbeat
