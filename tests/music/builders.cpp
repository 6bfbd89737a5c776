#include "music/builders.h"

#include <algorithm>

#include "support/dates.h"

namespace backbeat {

namespace {

constexpr int64_t idsApart = 3;  // as the game gives them

size_t positionOf(const GameState& state, int64_t songId) {
  return state.saveAllSongList.find([&](const Song& song) { return song.songId == songId; });
}

/// Song after song, week by week, as the history grows.
void addStreams(GameState& state, int64_t songs, int64_t weeks) {
  for (int64_t ago = weeks; ago > 0; --ago) {
    const int64_t absolute = state.weekNumberForTracking - ago;
    for (int64_t i = 0; i < songs; ++i) {
      WeeklySongListens row;
      row.songId = firstWorldSong + idsApart * i;
      row.songTitle = "Song No. " + std::to_string(i + 1);
      row.weekNumber = (absolute - 1) % 52 + 1;
      row.yearNumber = 2023 + (absolute - 1) / 52;
      row.songListens = 1'000 + 10 * i;
      state.saveAllWeeklySongListens.append(row);
    }
  }
}

}  // namespace

Song songInProduction(int64_t songId, const std::string& title) {
  Song song;
  song.songId = songId;
  song.title = title;
  song.album = "Single";
  song.productionRating = 40;
  song.viralityScore = 5;
  song.features = {""};
  song.marketingScore = 10;
  song.streamPayRate = 0.001;
  song.percentageOfEarnings = 1;
  return song;
}

Song releasedSong(int64_t songId, const std::string& title) {
  Song song = songInProduction(songId, title);
  song.isReleased = true;
  song.releaseWeek = 1;
  song.releaseYear = 2023;
  return song;
}

Album releasedAlbum(int64_t albumId, const std::string& title) {
  Album album;
  album.albumId = albumId;
  album.title = title;
  album.isReleased = true;
  album.songCount = 1;
  album.releaseWeek = 1;
  album.releaseYear = 2023;
  album.chartRanking = 1000;
  album.price = 3.99;
  album.marketingScore = 5;
  album.percentageOfEarnings = 1;
  return album;
}

int64_t addAlbumInProduction(GameState& state, const std::string& title, int64_t songs) {
  Album album = releasedAlbum(state.albumId += idsApart, title);
  album.isReleased = false;
  album.songCount = songs;
  album.releaseWeek = state.weekNumberForTracking;
  album.releaseYear = state.yearNumber;
  for (int64_t i = 1; i <= songs; ++i) {
    Song song = songInProduction(state.songId += idsApart, title + ", Track " + std::to_string(i));
    song.album = title;
    song.albumId = album.albumId;
    state.saveAllSongList.append(song);
  }
  state.saveAllAlbumList.append(std::move(album));
  return state.albumId;
}

void putOnChart(GameState& state, int64_t songId, int64_t rank, int64_t streams) {
  const size_t position = positionOf(state, songId);
  state.saveAllSongList.update(position, [&](Song& song) { song.chartRanking = rank; });
  BillboardSong row;
  row.songId = songId;
  row.songTitle = state.saveAllSongList[position].title;
  row.weeklySongListens = streams;
  row.rankThisWeek = row.peakPosition = rank;
  row.rankLastWeek = rank + 1;
  row.weeksAtOne = rank == 1 ? 3 : 0;
  row.weeksOnChart = 8;
  row.yearDebut = row.yearCurrent = state.yearNumber;
  row.weekNumber = std::max<int64_t>(state.weekNumberForTracking - row.weeksOnChart, 1);
  row.isOnCharts = true;
  state.saveAllBillboardSongList.append(std::move(row));
}

void takeOffChart(GameState& state, int64_t songId) {
  const size_t position = positionOf(state, songId);
  state.saveAllSongList.update(position, [](Song& song) { song.chartRanking = 0; });
  for (const uint32_t i : state.saveAllBillboardSongList.historyOf(songId)) {
    state.saveAllBillboardSongList.update(i, [&](BillboardSong& row) {
      row.rankThisWeek = songId + 1000;
      row.isOnCharts = false;
    });
  }
}

void furnishCareer(GameState& state, int64_t songs, int64_t weeksEach) {
  state.myArtistsName = "Mara Voss";
  state.promptToEnterName = 1;
  state.loginCount = 1;
  state.totalFans = 40'000;
  state.followerCount = 9'000;
  for (int64_t* skill : {&state.rhythm, &state.charisma, &state.vocalRange, &state.songWriting, &state.virality}) {
    *skill = 20;
  }
  for (int64_t i = 0; i < songs; ++i) {
    state.songId = firstWorldSong + idsApart * i;
    Song song = releasedSong(state.songId, "Song No. " + std::to_string(i + 1));
    song.releaseYear = state.yearNumber;
    song.releaseWeek = state.weekNumberForTracking;
    song.totalListen = 10'000 * (i + 1);
    state.saveAllSongList.append(std::move(song));
  }
  addStreams(state, songs, weeksEach);
  Album out = releasedAlbum(20, "First Light");
  out.releaseWeek = state.weekNumberForTracking;
  out.releaseYear = state.yearNumber;
  state.albumId = out.albumId;
  state.saveAllAlbumList.append(std::move(out));
  addAlbumInProduction(state, "Second Wind", 2);
}

}  // namespace backbeat
