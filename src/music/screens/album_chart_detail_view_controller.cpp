#include "music/screens/album_chart_detail_view_controller.h"

#include "core/money.h"
#include "music/album_creation.h"
#include "music/screens/statistics.h"

namespace backbeat {

namespace {

constexpr size_t weeksOnGraph = 156;
constexpr size_t weeksInTable = 12;

}  // namespace

View AlbumChartDetailViewController::view() const {
  View view{.title = "Statistics"};
  const auto position = albumPosition(state(), albumId_);
  if (!position) {
    view.add(EmptyHint{.icon = "chart", .text = "This album is no longer there."});
    return view;
  }
  const Album& album = state().saveAllAlbumList[*position];
  view.subtitle = album.title;
  const WeeklyFigures figures = albumFigures(state(), albumId_);
  if (figures.weeks == 0) {
    view.add(EmptyHint{.icon = "chart", .text = "Nothing sold yet. End the week to see the first copies go."});
    return view;
  }
  view.add(salesChart(state(), album, weeksOnGraph));
  view.add(Tiles{{{.icon = "album", .label = "Sold", .value = withCommas(album.albumsSold)},
                  {.icon = "flame", .label = "Best week", .value = withCommas(figures.best)},
                  {.icon = "calendar", .label = "Latest week", .value = withCommas(figures.latest)}}});
  view.add(Tiles{{{.icon = "cash", .label = "Earned", .value = currency(figures.earned)},
                  {.icon = "cart", .label = "Price", .value = price(album.price)},
                  {.icon = "document", .label = "Your share", .value = percentage(album.percentageOfEarnings * 100)}}});
  view.add(Heading{"Certification"});
  view.add(albumCertificationMeter(album));
  view.add(Heading{"Latest weeks"});
  view.add(salesTable(state(), albumId_, weeksInTable));
  return view;
}

}  // namespace backbeat
