#include "features/screens/featured_on_detail_view_controller.h"

#include "core/money.h"
#include "features/featured_streams.h"
#include "music/chart.h"
#include "music/screens/statistics.h"

namespace backbeat {

namespace {

constexpr size_t weeksOnGraph = 156;
constexpr size_t weeksInTable = 12;

Cover headOf(const FeaturedOn& verse) {
  Cover head{.picture = cover(verse.title), .title = verse.title, .text = verse.artistName, .hook = verse.title + "|"};
  if (verse.features.size() > 1) head.text += "\nfeat. " + verse.features[1];
  head.text += "\nReleased in " + std::to_string(verse.releaseYear);
  return head;
}

}  // namespace

View FeaturedOnDetailViewController::view() const {
  View view{.title = "Guest Verse"};
  const RecordList<FeaturedOn>& verses = state().saveAllFeaturedOnList;
  const size_t position = verses.find([&](const FeaturedOn& verse) { return verse.songId == songId_; });
  if (position == verses.size()) {
    view.add(EmptyHint{.icon = "guest", .text = "This song is no longer there."});
    return view;
  }
  const FeaturedOn& verse = verses[position];
  view.add(headOf(verse));
  const WeeklyFigures figures = verseFigures(state(), songId_);
  if (figures.weeks == 0) {
    view.add(
        EmptyHint{.icon = "chart", .text = "Nobody has streamed it yet. End the week to see the first listeners."});
  } else {
    view.add(verseChart(state(), verse, remainingLife(state(), verse), weeksOnGraph));
  }
  view.add(Tiles{{{.icon = "star", .label = "Rating", .value = withDecimals(verse.productionRating, 1)},
                  {.icon = "flame", .label = "Virality", .value = withDecimals(verse.viralityScore, 1)},
                  {.icon = "megaphone", .label = "Marketing", .value = withDecimals(verse.marketingScore, 0)}}});
  view.add(Tiles{{{.icon = "cash", .label = "Earned", .value = currency(figures.earned)},
                  {.icon = "gift", .label = "Fee", .value = currency(verse.flatFee)},
                  {.icon = "document", .label = "Your share", .value = percentage(verse.percentageOfEarnings * 100)}}});
  if (figures.weeks == 0) return view;
  view.add(Tiles{{{.icon = "flame", .label = "Best week", .value = withCommas(figures.best)},
                  {.icon = "calendar", .label = "Latest week", .value = withCommas(figures.latest)}}});
  addChartHistory(view, state(), verse.songId + featuredSongOffset, verse.chartRanking);
  view.add(Heading{"Latest weeks"});
  view.add(verseTable(state(), songId_, weeksInTable));
  return view;
}

}  // namespace backbeat
