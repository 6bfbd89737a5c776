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
  View view;
  view.title = "Statistics";
  const auto position = albumPosition(state(), albumId_);
  if (!position) {
    view.add(EmptyHint{"chart", "This album is no longer there."});
    return view;
  }
  const Album& album = state().saveAllAlbumList[*position];
  view.subtitle = album.title;
  const WeeklyFigures figures = albumFigures(state(), albumId_);
  if (figures.weeks == 0) {
    view.add(EmptyHint{"chart", "Nothing sold yet. End the week to see the first copies go."});
    return view;
  }
  view.add(salesChart(state(), album, weeksOnGraph));
  Tiles counts;
  counts.items.push_back({"album", "Sold", withCommas(album.albumsSold), "", Tone::plain, ""});
  counts.items.push_back({"flame", "Best week", withCommas(figures.best), "", Tone::plain, ""});
  counts.items.push_back({"calendar", "Latest week", withCommas(figures.latest), "", Tone::plain, ""});
  view.add(std::move(counts));
  Tiles money;
  money.items.push_back({"cash", "Earned", currency(figures.earned), "", Tone::plain, ""});
  money.items.push_back({"cart", "Price", price(album.price), "", Tone::plain, ""});
  money.items.push_back({"document", "Your share", percentage(album.percentageOfEarnings * 100), "", Tone::plain, ""});
  view.add(std::move(money));
  view.add(Heading{"Certification", {}});
  view.add(albumCertificationMeter(album));
  view.add(Heading{"Latest weeks", {}});
  view.add(salesTable(state(), albumId_, weeksInTable));
  return view;
}

}  // namespace backbeat
