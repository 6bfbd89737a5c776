#include "music/silence.h"

#include "music/album_sales.h"
#include "music/listeners.h"
#include "music/streaming.h"

namespace backbeat {

bool isSilent(const GameState& state, const Song& song) {
  return song.isReleased && song.chartRanking <= 0 && !(remainingLife(state, song) > 0) &&
         state.weekNumberForTracking - song.releaseWeek > songWeeksRemembered;
}

bool isSilent(const GameState& state, const Album& album) {
  return album.isReleased && state.weekNumberForTracking - album.releaseWeek > albumWeeksRemembered &&
         !(remainingLife(state, album) > 0);
}

void letSilentMusicSleep(GameState& state) {
  const auto isSilentNow = [&](const auto& release) { return isSilent(state, release); };
  state.saveAllSongList.letSleep(isSilentNow);
  state.saveAllAlbumList.letSleep(isSilentNow);
  state.saveAllBillboardSongList.letSleep([](const BillboardSong& row) { return !row.isOnCharts; });
}

}  // namespace backbeat
