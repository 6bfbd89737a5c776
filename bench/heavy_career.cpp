#include "heavy_career.h"

#include <algorithm>
#include <string>

#include "music/streaming.h"
#include "social/chirps.h"
#include "turn/screens/weekly_summary_view_controller.h"
#include "turn/week_cycle.h"

namespace backbeat {

namespace {

constexpr int64_t famousEnough = 60'000'000;

std::string songTitle(int64_t id) { return "The Long Way Home " + std::to_string(id); }
std::string albumTitle(int64_t id) { return "Evening Edition " + std::to_string(id / 10); }

void releaseAlbum(GameState& state, int64_t id) {
  Album album;
  album.albumId = id / 10 + 1;
  album.title = albumTitle(id);
  album.isReleased = true;
  album.songCount = 10;
  album.releaseWeek = state.weekNumberForTracking;
  album.releaseYear = state.yearNumber;
  album.price = 9.99;
  album.marketingScore = 60;
  album.percentageOfEarnings = 1;
  state.saveAllAlbumList.append(std::move(album));
}

void releaseSong(Game& game) {
  GameState& state = game.state;
  Song song;
  song.songId = ++state.songId;
  song.title = songTitle(song.songId);
  song.album = albumTitle(song.songId);
  song.albumId = song.songId / 10 + 1;
  song.isReleased = true;
  song.releaseWeek = state.weekNumberForTracking;
  song.releaseYear = state.yearNumber;
  song.productionRating = game.random.uniformDouble(70, 100);
  song.viralityScore = game.random.uniformDouble(20, 60);
  song.features = {""};
  song.marketingScore = 60;
  song.streamPayRate = 0.001;
  song.percentageOfEarnings = 1;
  state.saveAllSongList.append(std::move(song));
  if (state.songId % 10 == 0) releaseAlbum(state, state.songId);
  game.save(&GameState::saveAllSongList, &GameState::saveAllAlbumList, &GameState::songId);
}

}  // namespace

void liveWeek(Game& game) {
  releaseSong(game);
  postChirpForArtist(game, songTitle(game.state.songId) + " is out! 🎶", 100'000);
  game.state.totalFans = famousEnough;
  game.save(&GameState::totalFans);
  game.saveFile.commit();
}

void playWeek(Game& game) {
  runWeekCycle(game, [&] {
    WeeklySummaryViewController report(game);
    report.open();
    report.appear();
    report.closeButton();
  });
  game.saveFile.commit();
}

GameState heavyCareer(int64_t weeks) {
  NullStore nowhere;
  LoneGame past(nowhere);
  past.game.state.myArtistsName = "Mara Quill";
  past.game.state.promptToEnterName = 1;
  for (int64_t week = 0; week < weeks; ++week) {
    liveWeek(past.game);
    playWeek(past.game);
  }
  return std::move(past.game.state);
}

size_t recordsIn(const GameState& state) {
  size_t records = 0;
  for (const auto& [key, list] : listsOf(state)) records += list.size();
  return records;
}

size_t songsStreaming(const GameState& state) {
  const auto& songs = state.saveAllSongList;
  return static_cast<size_t>(
      std::count_if(songs.begin(), songs.end(), [&](const Song& song) { return remainingLife(state, song) > 0; }));
}

}  // namespace backbeat
