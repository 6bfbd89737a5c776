// The chart. There are no rivals: a rank follows from how close a week's streams come to a number-one figure that is
// drawn anew each week. Three writers fill rows during the turn: the player's songs, the signed artists' and guest
// verses; the sweep then makes the ranks consistent.
#pragma once

#include <string>
#include <vector>

#include "core/game.h"
#include "core/text.h"

namespace backbeat {

/// Rows of the chart are told apart by their id: the player's songs keep theirs, the others add these.
inline constexpr int64_t signedArtistSongOffset = 1'000'000;
inline constexpr int64_t featuredSongOffset = 10'000'000;

inline bool isOwnSong(const BillboardSong& row) { return row.songId < signedArtistSongOffset; }

/// Whether the row belongs to one of the label's artists: neither to a song of the player's nor to a verse of theirs.
inline bool isOfTheLabel(const BillboardSong& row) {
  return row.songId >= signedArtistSongOffset && row.songId < featuredSongOffset;
}

/// Draws this week's number-one figure and what follows from it.
void openWeeklyChart(Game& game);

/// 100 minus the whole percentage of first place, at least 1. Streams over first place rank 1 with no bonus; the entry
/// threshold comes to 75.
int64_t chartRankFor(int64_t streams, int64_t firstPlace);

/// What a week of one song brings to the chart.
struct ChartEntry {
  int64_t songId = 0;  ///< with the offset of its kind
  std::string title;
  std::string feature;  ///< names of the guests, or ""
  int64_t streams = 0;
};

/// Enters, moves or removes the song's row, and answers the song's new `chartRanking` (0: off the chart).
/// `ranking` is the one it had. A row that returns keeps `isOnCharts` false, on purpose: it is passed over from then
/// on.
int64_t runChartStep(Game& game, const ChartEntry& entry, int64_t ranking);

/// The guest whom a row names when it names the first alone, or "".
std::string firstGuest(const std::vector<std::string>& features);

/// The same for what has the members of a song: by its id and the offset of its kind, what it streamed this week, and
/// the guests whom its row names.
template <class Work>
int64_t chartedRank(Game& game, const Work& work, int64_t offset, int64_t streams,
                    std::string (*guests)(const std::vector<std::string>&) = firstGuest) {
  // Off the chart and not on it before: the row need not be built.
  if (streams < game.turn.lastPlaceChartPosition && work.chartRanking <= 0) return 0;
  return runChartStep(game, {work.songId + offset, trimmed(work.title), guests(work.features), streams},
                      work.chartRanking);
}

/// Sorts the rows by streams and pushes ties and overtakers down, so that ranks rise strictly (with gaps, and past 75
/// where the top is crowded: nothing cuts them). Leaves an empty chart alone.
void settleBillboardRanks(Game& game);

/// What opening the chart does: rows on the chart from before the cut-off year are put out to pasture, and the rows of
/// signed artists go when the label has none.
void retireOldChartRows(Game& game);
void removeSignedArtistChartRows(Game& game);

}  // namespace backbeat
