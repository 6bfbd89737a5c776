#include "music/screens/statistics.h"

#include <algorithm>
#include <optional>

#include "core/money.h"
#include "core/view_words.h"
#include "music/certifications.h"
#include "music/screens/album_rows.h"
#include "music/screens/song_rows.h"

namespace backbeat {

namespace {

int64_t countOf(const WeeklySongListens& week) { return week.songListens; }
int64_t countOf(const WeeklyAlbumSales& week) { return week.albumSales; }
int64_t countOf(const FeaturedOnWeeklySongListens& week) { return week.songListens; }
int64_t countOf(const WeeklyVideoViews& week) { return week.videoViews; }
double dollarsOf(const FeaturedOnWeeklySongListens& week) { return week.totalStreamRevenue; }
double dollarsOf(const WeeklySongListens& week) { return week.totalStreamRevenue; }
double dollarsOf(const WeeklyAlbumSales& week) { return week.albumRevenue; }
double dollarsOf(const WeeklyVideoViews& week) { return week.totalViewRevenue; }

template <class T>
WeeklyFigures figuresOf(const RecordList<T>& list, int64_t id) {
  WeeklyFigures figures;
  for (const uint32_t position : list.historyOf(id)) {
    const T& week = list[position];
    figures.weeks += 1;
    figures.latest = countOf(week);
    figures.best = std::max(figures.best, figures.latest);
    figures.earned += dollarsOf(week);
  }
  return figures;
}

template <class T>
void addWeeks(Chart& chart, const RecordList<T>& list, int64_t id, size_t mostWeeks) {
  const auto weeks = list.historyOf(id);
  for (const uint32_t position : weeks.subspan(weeks.size() - std::min(mostWeeks, weeks.size()))) {
    chart.points.push_back(static_cast<double>(countOf(list[position])));
    chart.labels.push_back("W" + std::to_string(list[position].weekNumber));
  }
}

template <class T>
Table weeksTable(const RecordList<T>& list, int64_t id, const char* counted, size_t mostWeeks) {
  Table table{.columns = {"Week", counted, "Earned"}};
  const auto weeks = list.historyOf(id);
  for (size_t i = 0; i < std::min(mostWeeks, weeks.size()); ++i) {
    const T& week = list[weeks[weeks.size() - 1 - i]];
    table.rows.push_back({std::to_string(week.weekNumber) + ", " + std::to_string(week.yearNumber),
                          withCommas(countOf(week)), price(dollarsOf(week))});
  }
  return table;
}

Meter certificationMeter(int64_t tier, int64_t total, std::optional<int64_t> next) {
  return {
      .label = tier == 0 ? "Not certified yet" : "Certified " + std::string(certificationName(tier)),
      .value = next ? std::string(certificationName(tier + 1)) + " at " + withCommas(*next) : "The highest there is",
      .share = next ? shareOf(total, *next) : 1,
      .tone = tier > 0 ? Tone::good : Tone::plain};
}

}  // namespace

WeeklyFigures songFigures(const GameState& state, int64_t songId) {
  return figuresOf(state.saveAllWeeklySongListens, songId);
}

WeeklyFigures albumFigures(const GameState& state, int64_t albumId) {
  return figuresOf(state.saveAllWeeklyAlbumSales, albumId);
}

WeeklyFigures verseFigures(const GameState& state, int64_t songId) {
  return figuresOf(state.saveAllFeaturedOnWeeklySongListens, songId);
}

WeeklyFigures videoFigures(const GameState& state, int64_t videoId) {
  return figuresOf(state.saveAllWeeklyVideoViews, videoId);
}

Chart streamsChart(const GameState& state, const Song& song, size_t mostWeeks) {
  Chart chart{.title = "Streams",
              .value = withCommas(song.totalListen),
              .note = lifeLeft(state, song),
              .style = Chart::Style::bars};
  addWeeks(chart, state.saveAllWeeklySongListens, song.songId, mostWeeks);
  return chart;
}

Chart salesChart(const GameState& state, const Album& album, size_t mostWeeks) {
  Chart chart{.title = "Sold",
              .value = withCommas(album.albumsSold),
              .note = lifeLeft(state, album),
              .style = Chart::Style::bars};
  addWeeks(chart, state.saveAllWeeklyAlbumSales, album.albumId, mostWeeks);
  return chart;
}

Chart verseChart(const GameState& state, const FeaturedOn& verse, double life, size_t mostWeeks) {
  Chart chart{
      .title = "Streams", .value = withCommas(verse.totalListen), .note = lifeLeft(life), .style = Chart::Style::bars};
  addWeeks(chart, state.saveAllFeaturedOnWeeklySongListens, verse.songId, mostWeeks);
  return chart;
}

Chart viewsChart(const GameState& state, const MusicVideo& video, size_t mostWeeks) {
  Chart chart{.title = "Views", .value = withCommas(video.totalViews), .style = Chart::Style::bars};
  addWeeks(chart, state.saveAllWeeklyVideoViews, video.videoId, mostWeeks);
  return chart;
}

Meter songCertificationMeter(const Song& song) {
  return certificationMeter(songCertificationTier(song.totalListen), song.totalListen,
                            nextSongCertification(song.totalListen));
}

Meter albumCertificationMeter(const Album& album) {
  return certificationMeter(albumCertificationTier(album), album.albumsSold, nextAlbumCertification(album));
}

void addChartHistory(View& view, const GameState& state, int64_t chartId, int64_t ranking) {
  view.add(Heading{"Chart history"});
  const auto known = state.saveAllBillboardSongList.historyOf(chartId);
  if (known.empty()) {
    view.add(EmptyHint{.icon = "trophy", .text = "It has not been on the Billboard 100."});
    return;
  }
  const BillboardSong& row = state.saveAllBillboardSongList[known.front()];
  view.add(Tiles{{{.icon = "trophy", .label = "Peak", .value = rank(row.peakPosition)},
                  {.icon = "calendar", .label = "On chart", .value = counted(row.weeksOnChart, "week")},
                  {.icon = "star", .label = "At number one", .value = counted(row.weeksAtOne, "week")}}});
  std::string now = "Entered in " + std::to_string(row.yearDebut);
  now += ranking > 0 ? ", now at " + rank(ranking) + "." : ", off the chart now.";
  view.add(caption(std::move(now)));
}

Table streamsTable(const GameState& state, int64_t songId, size_t mostWeeks) {
  return weeksTable(state.saveAllWeeklySongListens, songId, "Streams", mostWeeks);
}

Table salesTable(const GameState& state, int64_t albumId, size_t mostWeeks) {
  return weeksTable(state.saveAllWeeklyAlbumSales, albumId, "Sold", mostWeeks);
}

Table verseTable(const GameState& state, int64_t songId, size_t mostWeeks) {
  return weeksTable(state.saveAllFeaturedOnWeeklySongListens, songId, "Streams", mostWeeks);
}

Table viewsTable(const GameState& state, int64_t videoId, size_t mostWeeks) {
  return weeksTable(state.saveAllWeeklyVideoViews, videoId, "Views", mostWeeks);
}

}  // namespace backbeat
