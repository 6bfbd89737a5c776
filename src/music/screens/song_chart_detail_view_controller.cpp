#include "music/screens/song_chart_detail_view_controller.h"

#include "core/money.h"
#include "music/screens/statistics.h"
#include "music/song_release.h"

namespace backbeat {

namespace {

constexpr size_t weeksOnGraph = 156;
constexpr size_t weeksInTable = 12;

}  // namespace

View SongChartDetailViewController::view() const {
  View view{.title = "Statistics"};
  const auto position = songPosition(state(), songId_);
  if (!position) {
    view.add(EmptyHint{.icon = "chart", .text = "This song is no longer there."});
    return view;
  }
  const Song& song = state().saveAllSongList[*position];
  view.subtitle = song.title;
  const WeeklyFigures figures = songFigures(state(), songId_);
  if (figures.weeks == 0) {
    view.add(
        EmptyHint{.icon = "chart", .text = "Nobody has streamed it yet. End the week to see the first listeners."});
    return view;
  }
  view.add(streamsChart(state(), song, weeksOnGraph));
  view.add(Tiles{{{.icon = "headphones", .label = "Streams", .value = withCommas(song.totalListen)},
                  {.icon = "flame", .label = "Best week", .value = withCommas(figures.best)},
                  {.icon = "calendar", .label = "Latest week", .value = withCommas(figures.latest)}}});
  view.add(Tiles{{{.icon = "cash", .label = "Earned", .value = currency(figures.earned)},
                  {.icon = "headphones", .label = "1,000 streams", .value = price(song.streamPayRate * 1000)},
                  {.icon = "document", .label = "Your share", .value = percentage(song.percentageOfEarnings * 100)}}});
  addChartHistory(view, state(), song.songId, song.chartRanking);
  view.add(Heading{"Certification"});
  view.add(songCertificationMeter(song));
  view.add(Heading{"Latest weeks"});
  view.add(streamsTable(state(), songId_, weeksInTable));
  return view;
}

}  // namespace backbeat
