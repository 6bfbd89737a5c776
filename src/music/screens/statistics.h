// How songs, albums, videos and verses for others have done, told from the weekly records alone.
#pragma once

#include "core/game_state.h"
#include "core/view.h"

namespace backbeat {

/// What the recorded weeks of one song, album, video or verse come to. Weeks that left no record count for nothing.
struct WeeklyFigures {
  int64_t weeks = 0;
  int64_t latest = 0;  ///< streams, units or views of the latest recorded week
  int64_t best = 0;    ///< of the best one
  double earned = 0;   ///< dollars
};
WeeklyFigures songFigures(const GameState& state, int64_t songId);
WeeklyFigures albumFigures(const GameState& state, int64_t albumId);
WeeklyFigures verseFigures(const GameState& state, int64_t songId);
WeeklyFigures videoFigures(const GameState& state, int64_t videoId);

/// The latest recorded weeks as a graph, `mostWeeks` of them, over the lifetime figure and the weeks left to live.
Chart streamsChart(const GameState& state, const Song& song, size_t mostWeeks);
Chart salesChart(const GameState& state, const Album& album, size_t mostWeeks);
Chart verseChart(const GameState& state, const FeaturedOn& verse, double life, size_t mostWeeks);
/// Without a word on how long the video will be watched.
Chart viewsChart(const GameState& state, const MusicVideo& video, size_t mostWeeks);

/// How far a total is on its way to the next certification.
Meter songCertificationMeter(const Song& song);
Meter albumCertificationMeter(const Album& album);

/// What the chart row of that id has seen; `ranking` is its song's place now, 0 for none.
void addChartHistory(View& view, const GameState& state, int64_t chartId, int64_t ranking);

/// What it earned, week by week, the latest first.
Table streamsTable(const GameState& state, int64_t songId, size_t mostWeeks);
Table salesTable(const GameState& state, int64_t albumId, size_t mostWeeks);
Table viewsTable(const GameState& state, int64_t videoId, size_t mostWeeks);
Table verseTable(const GameState& state, int64_t songId, size_t mostWeeks);

}  // namespace backbeat
