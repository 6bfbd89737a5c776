// A career small enough to see whole, with something of every kind in it.
#pragma once

#include "core/game_state.h"

namespace backbeat {

/// A few songs out of their first order, a chirp list grown at its head, records within records, and scalars of each
/// kind.
inline GameState smallCareer() {
  GameState state;
  state.myArtistsName = "Zoë 🎤";
  state.totalCashAvailable = -12.5;
  state.totalFans = 9'000'000'000;
  state.AllCompletedAchievements = {4, 7};
  state.songId = state.chirpId = 139;
  state.merchId = 5;
  state.songDictionary = {{"", "empty"}, {"k", "ü"}};
  for (int64_t id = 100; id < 140; ++id) {
    state.saveAllSongList.append({.songId = id, .title = "Song", .viralityScore = static_cast<double>(id * 7 % 40)});
    state.saveAllChirpList.insertFront({.id = id, .timestamp = {1.7e9}});
  }
  state.saveAllSongList.sortDescending(&Song::viralityScore);
  state.saveAllMerchReleasedList.append({.merchId = 5, .songList = {state.saveAllSongList[0]}});
  return state;
}

}  // namespace backbeat
