#include "label/signed_artist_output.h"

#include "label/builders.h"
#include "music/chart.h"
#include "support/dates.h"
#include "support/world.h"

namespace backbeat {
namespace {

/// An artist with a million listeners and an album out in week 100, in a week with a number one of a million.
struct Week : World {
  explicit Week(int64_t songs = 1, double rating = 50) {
    setDate(state, 100);
    foundLabel(state);
    addSignedArtist(state, "Juno Hale", 50);
    addSignedAlbum(state, 1, songs, rating);
    game.turn.firstPlaceChartPosition = 1'000'000;
    game.turn.lastPlaceChartPosition = 250'000;
    settle();
  }
  void song(size_t i, void (*how)(SignedArtistSong&)) { state.saveAllSignedArtistSongList.update(i, how), settle(); }
  void album(void (*how)(SignedArtistAlbum&)) { state.saveAllSignedArtistAlbumList.update(0, how), settle(); }
  void stream() { simulateSignedArtistStreams(game); }
  void sell() { simulateSignedArtistAlbumSales(game); }
  const auto& streams() const { return state.saveAllSignedArtistWeeklySongListens; }
  const auto& sales() const { return state.saveAllSignedArtistWeeklyAlbumSales; }
};

TEST(SignedStreams, LaunchByListenersMarketingAndVirality) {
  Week world;
  world.song(0, [](SignedArtistSong& song) {
    song.viralityScore = 40;
    song.marketingScore = 21;
    song.features = {"", " Luz Carmina "};
  });
  world.state.labelStreamingRate = 0.002;
  world.settle();
  world.stream();
  // Nine tenths of a million and the thousand that marketing reaches, by half.
  ASSERT_EQ(world.streams().size(), 1u);
  EXPECT_NEAR(static_cast<double>(world.streams()[0].songListens), 450'450, 1);
  EXPECT_NEAR(world.streams()[0].totalStreamRevenue, 720.72, 0.0011) << "at the rate of today";
  const SignedArtistSong& song = world.state.saveAllSignedArtistSongList[0];
  EXPECT_DOUBLE_EQ(song.marketingScore, 19);
  EXPECT_DOUBLE_EQ(song.viralityScore, 34);
  EXPECT_EQ(song.totalListen, world.streams()[0].songListens);
  EXPECT_EQ(song.chartRanking, 55);
  const BillboardSong& row = world.state.saveAllBillboardSongList[0];
  EXPECT_EQ(row.songId, signedArtistSongOffset + 1);
  EXPECT_EQ(row.rankThisWeek, 55);
  EXPECT_EQ(row.songFeature, "Luz Carmina");
}

TEST(SignedStreams, AreCappedAndNeedNoContract) {
  Week world;
  world.song(0, [](SignedArtistSong& song) { song.viralityScore = 120; });
  world.state.saveAllSignedArtistList.update(0, [](SignedArtist& juno) {
    juno.monthlyListeners = 20'000'000;
    juno.underContract = false;
  });
  world.settle();
  world.random.doubleIs(4e8, 5e8, 450'000'000.75);
  world.stream();
  EXPECT_EQ(world.streams()[0].songListens, 450'000'000);
  world.expectSaved();
  world.state.saveAllSignedArtistList.clear();
  world.settle();
  world.stream();
  EXPECT_LT(world.streams()[1].songListens, 100'000) << "nobody listens to nobody";
}

TEST(SignedStreams, ResidualWeeksFollowWhatWasStreamedAndTwoStreamsAreRecorded) {
  Week world(3);
  for (size_t i = 0; i < 3; ++i) world.song(i, [](SignedArtistSong& song) { song.marketingScore = 0; });
  world.song(0, [](SignedArtistSong& song) { song.totalListen = 1'000'000; });
  world.song(1, [](SignedArtistSong& song) { song.totalListen = 799; });
  world.song(2, [](SignedArtistSong& song) { song.marketingScore = -1; });
  world.song(2, [](SignedArtistSong& song) { song.totalListen = 1'000'000; });
  world.stream();
  ASSERT_EQ(world.streams().size(), 1u);
  EXPECT_EQ(world.streams()[0].songListens, 2'500);
  EXPECT_EQ(world.state.saveAllSignedArtistSongList[0].totalListen, 1'002'500);
  EXPECT_EQ(world.state.saveAllSignedArtistSongList[1].totalListen, 800) << "counted and not recorded";
  EXPECT_EQ(world.state.saveAllSignedArtistSongList[2].totalListen, 1'000'000);
}

TEST(SignedStreams, FallSilentForGoodAndSilenceIsFoundAgainAfterClearingUp) {
  Week world(2);
  world.song(0, [](SignedArtistSong& song) { song.productionRating = 3; });
  setDate(world.state, 149);
  world.settle();
  world.stream();
  ASSERT_EQ(world.streams().size(), 1u);
  EXPECT_EQ(world.streams()[0].songId, 2);
  letSilentArtistsSleep(world.state);
  EXPECT_EQ(world.state.saveAllSignedArtistSongList.awake(), (std::vector<uint32_t>{1}));
  world.state.saveAllSignedArtistSongList.erase(0);
  world.settle();
  world.stream();
  EXPECT_EQ(world.streams().size(), 2u) << "the first of the list is another now";
  setDate(world.state, 150);
  world.settle();
  world.stream();
  EXPECT_EQ(world.streams().size(), 2u);
}

TEST(SignedStreams, WhoLeavesTheChartIsMarkedAndComesBackInAnotherState) {
  Week world;
  world.song(0, [](SignedArtistSong& song) { song.viralityScore = 40; });
  world.stream();  // nine tenths of a million, by half
  const BillboardSong& row = world.state.saveAllBillboardSongList[0];
  EXPECT_EQ(row.weeksOnChart, 1);
  world.game.turn.lastPlaceChartPosition = 1'000'000;
  world.stream();
  EXPECT_EQ(row.rankLastWeek, 55);
  EXPECT_EQ(row.rankThisWeek, 1'001'001) << "off the chart";
  EXPECT_FALSE(row.isOnCharts);
  EXPECT_EQ(world.state.saveAllSignedArtistSongList[0].chartRanking, 0);
  world.game.turn.lastPlaceChartPosition = 100'000;
  world.game.turn.songsOnCharts.clear();
  world.stream();
  EXPECT_EQ(row.weeksOnChart, 2);
  EXPECT_EQ(row.peakPosition, 55);
  EXPECT_EQ(row.rankThisWeek, world.state.saveAllSignedArtistSongList[0].chartRanking);
  EXPECT_FALSE(row.isOnCharts) << "it counts its weeks and is not shown";
}

TEST(SignedWeeks, TellWhoseTheyAreAndOfWhichWeek) {
  Week world;
  const int64_t other = addSignedArtist(world.state, "Lil Ember", 30);
  addSignedAlbum(world.state, other, 2, 40);
  world.settle();
  world.random.doubleIs(0.2, 0.4, 0.4).doubleIs(0.2, 0.4, 0.4);
  world.stream();
  world.sell();
  ASSERT_EQ(world.streams().size(), 3u);
  EXPECT_EQ(world.streams()[2],
            (SignedArtistWeeklySongListens{.songId = 3,
                                           .artistId = 2,
                                           .albumId = 2,
                                           .songTitle = "Song 3",
                                           .songListens = world.state.saveAllSignedArtistSongList[2].totalListen,
                                           .weekNumber = 48,
                                           .yearNumber = 2024,
                                           .totalStreamRevenue = world.streams()[1].totalStreamRevenue}));
  ASSERT_EQ(world.sales().size(), 2u);
  EXPECT_EQ(world.sales()[1].albumTitle, "Album 2");
  EXPECT_EQ(world.sales()[1].artistId, 2);
  EXPECT_EQ(world.sales()[1].albumSales, world.state.saveAllSignedArtistAlbumList[1].albumsSold);
  EXPECT_EQ(world.sales()[1].weekNumber, 48);
  EXPECT_EQ(world.sales()[1].yearNumber, 2024);
}

TEST(SignedSales, LaunchByListenersReachAndAPriceThatJumpsAbout) {
  Week world(10, 40);
  for (size_t i = 0; i < 10; ++i) world.song(i, [](SignedArtistSong& song) { song.viralityScore = 0; });
  world.album([](SignedArtistAlbum& album) { album.marketingScore = 3; });
  world.random.doubleIs(0.2, 0.4, 0.4);
  world.sell();
  // A tenth of 180,000 and of nine that marketing reaches, by half, since ten songs of forty come to fifty.
  ASSERT_EQ(world.sales().size(), 1u);
  EXPECT_EQ(world.sales()[0].albumSales, 3'600);
  EXPECT_DOUBLE_EQ(world.sales()[0].albumRevenue, 20'160);
  EXPECT_DOUBLE_EQ(world.state.saveAllSignedArtistAlbumList[0].marketingScore, 0);
  EXPECT_EQ(world.state.saveAllSignedArtistAlbumList[0].albumsSold, 3'600);
}

TEST(SignedSales, ResidualWeeksShrinkAndATierNeverFalls) {
  struct Case {
    int64_t sold;
    size_t recorded;
    int64_t after;
    int64_t award;
  };
  for (const Case& each : {Case{100, 0, 100, 2}, Case{400, 1, 401, 2}, Case{499'000, 1, 500'247, 3}}) {
    Week world(10, 40);
    world.state.saveAllSignedArtistAlbumList.update(0, [&](SignedArtistAlbum& album) {
      album.marketingScore = 0;
      album.albumsSold = each.sold;
      album.albumAward = 2;
    });
    world.settle();
    world.sell();
    EXPECT_EQ(world.sales().size(), each.recorded);
    EXPECT_EQ(world.state.saveAllSignedArtistAlbumList[0].albumsSold, each.after);
    EXPECT_EQ(world.state.saveAllSignedArtistAlbumList[0].albumAward, each.award);
  }
}

TEST(SignedSales, AnAlbumLastsAsLongAsItsSongsComeTo) {
  Week world(10, 40);
  setDate(world.state, 149);
  world.settle();
  world.random.doubleIs(0.2, 0.4, 0.3);
  world.sell();
  EXPECT_EQ(world.sales().size(), 1u);
  setDate(world.state, 150);
  world.settle();
  world.sell();
  EXPECT_EQ(world.sales().size(), 1u);
}

}  // namespace
}  // namespace backbeat
