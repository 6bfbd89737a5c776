#include "music/screens/song_chart_detail_view_controller.h"

#include "core/money.h"
#include "music/screens/statistics.h"
#include "music/song_release.h"

namespace backbeat {

namespace {

constexpr size_t weeksOnGraph = 156;
constexpr size_t weeksInTable = 12;

void describeChartHistory(View& view, const GameState& state, const Song& song) {
  view.add(Heading{"Chart history", {}});
  const RecordList<BillboardSong>& rows = state.saveAllBillboardSongList;
  const size_t found = rows.find([&](const BillboardSong& row) { return row.songId == song.songId; });
  if (found == rows.size()) {
    view.add(EmptyHint{"trophy", "It has not been on the Billboard 100."});
    return;
  }
  const BillboardSong& row = rows[found];
  Tiles tiles;
  tiles.items.push_back({"trophy", "Peak", rank(row.peakPosition), "", Tone::plain, ""});
  tiles.items.push_back({"calendar", "On chart", counted(row.weeksOnChart, "week"), "", Tone::plain, ""});
  tiles.items.push_back({"star", "At number one", counted(row.weeksAtOne, "week"), "", Tone::plain, ""});
  view.add(std::move(tiles));
  std::string now = "Entered in " + std::to_string(row.yearDebut);
  now += song.chartRanking > 0 ? ", now at " + rank(song.chartRanking) + "." : ", off the chart now.";
  view.add(Text{std::move(now), Tone::plain, Text::Style::caption});
}

}  // namespace

View SongChartDetailViewController::view() const {
  View view;
  view.title = "Statistics";
  const auto position = songPosition(state(), songId_);
  if (!position) {
    view.add(EmptyHint{"chart", "This song is no longer there."});
    return view;
  }
  const Song& song = state().saveAllSongList[*position];
  view.subtitle = song.title;
  const WeeklyFigures figures = songFigures(state(), songId_);
  if (figures.weeks == 0) {
    view.add(EmptyHint{"chart", "Nobody has streamed it yet. End the week to see the first listeners."});
    return view;
  }
  view.add(streamsChart(state(), song, weeksOnGraph));
  Tiles counts;
  counts.items.push_back({"headphones", "Streams", withCommas(song.totalListen), "", Tone::plain, ""});
  counts.items.push_back({"flame", "Best week", withCommas(figures.best), "", Tone::plain, ""});
  counts.items.push_back({"calendar", "Latest week", withCommas(figures.latest), "", Tone::plain, ""});
  view.add(std::move(counts));
  Tiles money;
  money.items.push_back({"cash", "Earned", currency(figures.earned), "", Tone::plain, ""});
  money.items.push_back({"headphones", "1,000 streams", price(song.streamPayRate * 1000), "", Tone::plain, ""});
  money.items.push_back({"document", "Your share", percentage(song.percentageOfEarnings * 100), "", Tone::plain, ""});
  view.add(std::move(money));
  describeChartHistory(view, state(), song);
  view.add(Heading{"Certification", {}});
  view.add(songCertificationMeter(song));
  view.add(Heading{"Latest weeks", {}});
  view.add(streamsTable(state(), songId_, weeksInTable));
  return view;
}

}  // namespace backbeat
