#include "turn/pruning.h"

#include <algorithm>

#include "core/calendar.h"

namespace backbeat {

namespace {

constexpr int64_t yearsOfSignedMusic = 10;

template <class T>
bool isOld(const T& record, int64_t firstYearKept) {
  return record.isReleased && record.releaseYear < firstYearKept;
}

template <class T>
int64_t countOld(const RecordList<T>& list, int64_t firstYearKept) {
  return std::count_if(list.begin(), list.end(), [&](const T& record) { return isOld(record, firstYearKept); });
}

template <class T>
void removeOld(RecordList<T>& list, int64_t firstYearKept) {
  list.eraseIf([&](const T& record) { return isOld(record, firstYearKept); });
}

template <class T>
void removeOldWeeks(RecordList<T>& list, int64_t firstYearKept) {
  list.eraseIf([&](const T& week) { return week.yearNumber < firstYearKept; });
}

}  // namespace

PruningCounts countForPruning(const GameState& state) {
  PruningCounts counts;
  counts.ownYear = state.yearNumber - yearsOfOwnMusic;
  counts.songs = countOld(state.saveAllSongList, counts.ownYear);
  counts.albums = countOld(state.saveAllAlbumList, counts.ownYear);
  counts.signedYear = state.yearNumber - yearsOfSignedMusic;
  counts.signedSongs = countOld(state.saveAllSignedArtistSongList, counts.signedYear);
  counts.signedAlbums = countOld(state.saveAllSignedArtistAlbumList, counts.signedYear);
  return counts;
}

Outcome optimize(Game& game) {
  GameState& state = game.state;
  const PruningCounts counts = countForPruning(state);
  removeOld(state.saveAllSignedArtistSongList, counts.signedYear);
  removeOld(state.saveAllSignedArtistAlbumList, counts.signedYear);
  removeOldWeeks(state.saveAllSignedArtistWeeklySongListens, counts.signedYear);
  removeOldWeeks(state.saveAllSignedArtistWeeklyAlbumSales, counts.signedYear);
  removeOldWeeks(state.saveAllWeeklySongListens, counts.ownYear);
  removeOldWeeks(state.saveAllWeeklyAlbumSales, counts.ownYear);
  removeOld(state.saveAllSongList, counts.ownYear);
  removeOld(state.saveAllAlbumList, counts.ownYear);
  game.save(&GameState::saveAllSignedArtistSongList, &GameState::saveAllSignedArtistAlbumList,
            &GameState::saveAllSignedArtistWeeklySongListens, &GameState::saveAllSignedArtistWeeklyAlbumSales,
            &GameState::saveAllWeeklySongListens, &GameState::saveAllWeeklyAlbumSales, &GameState::saveAllSongList,
            &GameState::saveAllAlbumList);
  return success();
}

Outcome resetStartups(Game& game) {
  game.state.saveAllVentureInvestments.clear();
  game.launch.ventures = {};  // what was offered for those stakes
  game.save(&GameState::saveAllVentureInvestments);
  return success();
}

}  // namespace backbeat
