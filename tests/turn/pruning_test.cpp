#include "turn/pruning.h"

#include <gtest/gtest.h>

#include "music/builders.h"
#include "support/world.h"
#include "turn/screens/data_view_controller.h"

namespace backbeat {
namespace {

/// The year 2053: the player's own music is kept from 2033, that of signed artists from 2043.
void fillWithOldAndNew(World& world) {
  GameState& state = world.state;
  state.yearNumber = 2053;
  state.myArtistsName = "Nova";
  for (const int64_t year : {2032, 2033}) {
    Song song = releasedSong(year, "S" + std::to_string(year));
    song.releaseYear = year;
    state.saveAllSongList.append(song);
    Album album = releasedAlbum(year, "A" + std::to_string(year));
    album.releaseYear = year;
    state.saveAllAlbumList.append(album);
    WeeklySongListens streams;
    streams.songId = 2033;
    streams.yearNumber = year;
    state.saveAllWeeklySongListens.append(streams);
    WeeklyAlbumSales sales;
    sales.yearNumber = year;
    state.saveAllWeeklyAlbumSales.append(sales);
  }
  for (const int64_t year : {2042, 2043}) {
    SignedArtistSong song;
    song.isReleased = true;
    song.releaseYear = year;
    state.saveAllSignedArtistSongList.append(song);
    SignedArtistAlbum album;
    album.isReleased = true;
    album.releaseYear = year;
    state.saveAllSignedArtistAlbumList.append(album);
    SignedArtistWeeklySongListens streams;
    streams.yearNumber = year;
    state.saveAllSignedArtistWeeklySongListens.append(streams);
    SignedArtistWeeklyAlbumSales sales;
    sales.yearNumber = year;
    state.saveAllSignedArtistWeeklyAlbumSales.append(sales);
  }
  Album forever = releasedAlbum(7, "In production for thirty years");
  forever.isReleased = false;
  state.saveAllAlbumList.append(forever);
  Song draft = songInProduction(8, "Draft");
  state.saveAllSongList.append(draft);
  state.saveAllSignedArtistSongList.append({.songId = 9});
  state.saveAllSignedArtistAlbumList.append({.albumId = 9});
}

TEST(Pruning, DropsWhatIsOldAndOut) {
  World world;
  fillWithOldAndNew(world);
  world.settle();
  DataViewController screen(world.game);
  EXPECT_EQ(screen.optimizeButton().alerts.front().message,
            "\nIf you are experiencing slowness, optimizing will remove\n\nSONG + ALBUM\ndata for:\n\nSIGNED "
            "ARTISTS\nSongs/albums released before 2043\n1 songs to remove\n1 albums to remove\n\nNova\nSongs/albums "
            "released before 2033\n1 songs to remove\n1 albums to remove\n\nAre you sure you want to optimize?");
  EXPECT_EQ(world.state.saveAllSongList.size(), 3u) << "asking removes nothing";

  screen.act(screen.optimizeButton().alerts.front().buttons[1].action);

  const GameState& state = world.state;
  ASSERT_EQ(state.saveAllSongList.size(), 2u);
  EXPECT_EQ(state.saveAllSongList[0].releaseYear, 2033);
  EXPECT_EQ(state.saveAllSongList[1].title, "Draft");
  ASSERT_EQ(state.saveAllAlbumList.size(), 2u);
  EXPECT_EQ(state.saveAllAlbumList[1].albumId, 7);
  EXPECT_EQ(state.saveAllWeeklySongListens.historyOf(2033).size(), 1u);
  EXPECT_EQ(state.saveAllWeeklyAlbumSales.size(), 1u);
  ASSERT_EQ(state.saveAllSignedArtistSongList.size(), 2u);
  EXPECT_EQ(state.saveAllSignedArtistSongList[0].releaseYear, 2043);
  EXPECT_EQ(state.saveAllSignedArtistSongList[1].songId, 9) << "in production";
  EXPECT_EQ(state.saveAllSignedArtistAlbumList.size(), 2u);
  EXPECT_EQ(state.saveAllSignedArtistWeeklySongListens.size(), 1u);
  EXPECT_EQ(state.saveAllSignedArtistWeeklyAlbumSales.size(), 1u);
  world.expectSaved();

  const GameState once = world.state;
  const PruningCounts counts = countForPruning(world.state);
  EXPECT_EQ(counts.songs + counts.albums + counts.signedSongs + counts.signedAlbums, 0);
  optimize(world.game);
  EXPECT_TRUE(world.state == once);
}

TEST(Pruning, ResettingStartupsKeepsTheBiggestExit) {
  World world;
  world.state.saveAllVentureInvestments.append({});
  world.state.biggestExit = 5e6;
  world.settle();
  DataViewController screen(world.game);
  screen.act(screen.resetStartupsButton().alerts.front().buttons[1].action);
  EXPECT_TRUE(world.state.saveAllVentureInvestments.empty());
  EXPECT_DOUBLE_EQ(world.state.biggestExit, 5e6);
}

}  // namespace
}  // namespace backbeat
