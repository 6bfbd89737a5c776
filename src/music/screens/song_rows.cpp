#include "music/screens/song_rows.h"

#include <algorithm>
#include <cmath>

#include "core/money.h"
#include "core/numbers.h"
#include "core/view_words.h"
#include "music/covers.h"
#include "music/streaming.h"

namespace backbeat {

std::vector<size_t> releasedSongs(const GameState& state) {
  std::vector<size_t> released;
  for (size_t i = 0; i < state.saveAllSongList.size(); ++i) {
    if (state.saveAllSongList[i].isReleased) released.push_back(i);
  }
  return released;
}

std::vector<size_t> mostHeard(const GameState& state, size_t count) {
  const RecordList<Song>& all = state.saveAllSongList;
  std::vector<size_t> most;
  const auto before = [&](size_t a, size_t b) { return all[a].totalListen > all[b].totalListen; };
  for (auto song = all.begin(); song != all.end(); ++song) {
    const bool isShort = most.size() < count;
    if (!song->isReleased || (!isShort && song->totalListen <= all[most.back()].totalListen)) continue;
    if (!isShort) most.pop_back();
    most.insert(std::upper_bound(most.begin(), most.end(), song.position(), before), song.position());
  }
  return most;
}

int64_t latestWeeklyStreams(const GameState& state, const Song& song) {
  const auto weeks = state.saveAllWeeklySongListens.historyOf(song.songId);
  return weeks.empty() ? 0 : state.saveAllWeeklySongListens[weeks.back()].songListens;
}

std::string lifeLeft(double life) {
  if (!(life > 0)) return "Silent";
  return counted(truncate(std::ceil(life)), "week") + " left";
}

std::string lifeLeft(const GameState& state, const Song& song) { return lifeLeft(remainingLife(state, song)); }

Row songRow(const GameState& state, const Song& song) {
  Row row{.picture = coverOf(state, song),
          .title = song.title,
          .subtitle = song.album,
          .badge = song.isExplicit >= 1 ? "E" : "",
          .opens = true,
          .id = "song:" + std::to_string(song.songId)};
  if (!song.isReleased) {
    row.value = withDecimals(song.productionRating, 1);
    row.note = "rating";
    return row;
  }
  row.subtitle += " · " + lifeLeft(state, song);
  row.value = abbreviated(static_cast<double>(song.totalListen));
  if (song.chartRanking > 0) {
    row.note = rank(song.chartRanking);
    row.tone = Tone::warning;
  } else if (remainingLife(state, song) > 0) {
    const int64_t latest = latestWeeklyStreams(state, song);
    row.note = "+" + abbreviated(static_cast<double>(latest));
    row.tone = toneOfChange(latest);
  }
  return row;
}

}  // namespace backbeat
