#include "music/screens/album_detail_view_controller.h"

#include "core/money.h"
#include "core/view_words.h"
#include "music/album_creation.h"
#include "music/album_release.h"
#include "music/covers.h"
#include "music/marketing_plans.h"
#include "music/news.h"
#include "music/screens/album_rows.h"
#include "music/screens/song_rows.h"
#include "music/screens/statistics.h"

namespace backbeat {

namespace {

constexpr size_t weeksOnGraph = 26;

}  // namespace

Outcome AlbumDetailViewController::act(const Action& action) {
  const auto position = albumPosition(state(), albumId_);
  if (!position) return {};
  const std::string id = std::to_string(albumId_);
  const bool isReleased = state().saveAllAlbumList[*position].isReleased;
  if (action.id == "releaseButton") return releaseAlbum(game_, albumId_);
  if (action.id == "pricingButton" && !isReleased) return goTo("goToSetAlbumPricing", id);
  // What markets an album in production tells of its sales once it is out.
  if (action.id == "marketingButton") return goTo(isReleased ? "goToAlbumChartDetail" : "goToSetAlbumMarketing", id);
  if (action.verb() == "song") return goTo("goToSongDetail", std::string(action.argument()));
  if (action.id == "songs") songs_.moveTo(action.value);
  return {};
}

View AlbumDetailViewController::view() const {
  View view;
  const auto position = albumPosition(state(), albumId_);
  if (!position) {
    view.title = "Album";
    view.add(EmptyHint{.icon = "album", .text = "This album is no longer there."});
    return view;
  }
  const Album& album = state().saveAllAlbumList[*position];
  view.title = album.title;
  const std::string stage = album.isReleased ? "\nRELEASED " + std::to_string(album.releaseYear) : "\nIn Production";
  view.add(Cover{.picture = coverOf(state(), album), .title = album.title, .text = albumFormat(album) + stage});
  if (album.isReleased) {
    describeReleased(view, album);
  } else {
    describeProduction(view, album);
  }
  describeSongs(view);
  return view;
}

void AlbumDetailViewController::describeProduction(View& view, const Album& album) const {
  view.add(Meter{.label = "Production rating",
                 .value = withDecimals(album.productionRating, 2),
                 .share = shareOf(album.productionRating, 100.0)});
  view.add(Heading{"Before the release"});
  if (const int64_t missing = fewestSongsOnAlbum - album.songCount; missing > 0) {
    view.add(Text{.text = counted(missing, "more song") + " and it can come out.", .tone = Tone::warning});
  }
  view.add(Button{.id = "pricingButton", .label = "SET PRICING (" + price(album.price) + ")"});
  Row marketing = wayTo("marketingButton", "megaphone", "MARKETING", "Brings listeners once it is out",
                        withDecimals(album.marketingScore, 0));
  marketing.note = "of " + std::to_string(mostMarketing + album.songCount + albumMarketingBonus);
  view.add(Rows{{std::move(marketing)}});
  view.mainAction = Button{.id = "releaseButton", .label = "RELEASE", .price = albumReleaseCost};
  if (album.songCount < fewestSongsOnAlbum) {
    view.mainAction->tone = Tone::locked;
  } else {
    view.mainAction->style = Button::Style::primary;
  }
  view.help =
      Help{.title = "Before the release",
           .text =
               "Three songs make an album. With six it is an LP, with fewer an EP.\n\nThe songs that are not out "
               "yet come out with it, for the 10 energy of one release. Price and marketing can only be set "
               "before."};
}

void AlbumDetailViewController::describeReleased(View& view, const Album& album) const {
  if (album.releaseWeek == state().weekNumberForTracking) {
    const bool isFirst = historyIsWhole(state()) && isFirstRelease(state(), album);
    view.add(Poster{.kicker = isFirst ? "Your first " + albumFormat(album) : "Released",
                    .title = "Out now",
                    .text = "End the week to see how it sells",
                    .mood = Poster::Mood::celebrate});
  }
  view.add(salesChart(state(), album, weeksOnGraph));
  view.add(albumCertificationMeter(album));
  const WeeklyFigures figures = albumFigures(state(), album.albumId);
  view.add(Tiles{{{.icon = "star", .label = "Rating", .value = withDecimals(album.productionRating, 1)},
                  {.icon = "cash", .label = "Earned", .value = "$" + abbreviated(figures.earned)},
                  {.icon = "cart", .label = "Price", .value = price(album.price)}}});
  view.add(Button{.id = "marketingButton", .label = "Statistics"});
}

void AlbumDetailViewController::describeSongs(View& view) const {
  view.add(Heading{"Songs"});
  const std::vector<size_t> positions = songsOnAlbum(state(), albumId_);
  if (positions.empty()) {
    view.add(EmptyHint{.icon = "note",
                       .text = "No songs yet. Pick this album when you create a song, or add one from its own page."});
    return;
  }
  view.add(windowedRows("songs", songs_, static_cast<int64_t>(positions.size()),
                        [&](size_t i) { return songRow(state(), state().saveAllSongList[positions[i]]); }));
}

}  // namespace backbeat
