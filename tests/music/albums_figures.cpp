#include "core/money.h"
#include "music/album_release.h"
#include "music/album_sales.h"
#include "music/figures.h"

namespace backbeat {

namespace {

Standings albumOutFigures(Game& twin) {
  const GameState& state = twin.state;
  const Album& album = albumTitled(state, "First Light");
  const Weeks weeks = weeksOf(state, album);
  return Standings{{"cover: text",
                    "EP · " + counted(album.songCount, "song") + "\nRELEASED " + std::to_string(album.releaseYear)},
                   {"Rating", withDecimals(album.productionRating, 1)},
                   {"Earned", "$" + abbreviated(weeks.earned())},
                   {"Price", price(album.price)}} +
         weekFigures("Sold", album.albumsSold, weeksLeft(remainingLife(state, album)), weeks) +
         certificationFigures("Certified Bronze", album.albumsSold, "Silver", 250'000) +
         songFigures(state, "Glass Harbour") + songFigures(state, "Low Tide");
}

Standings albumInProductionFigures(Game& twin) {
  const GameState& state = twin.state;
  const Album& album = albumTitled(state, "Second Wind");
  return Standings{{"cover: text", "EP · " + counted(album.songCount, "song") + "\nIn Production"},
                   {"Production rating", withDecimals(album.productionRating, 2)},
                   {"Production rating: share", shareText(album.productionRating / 100)},
                   {"text", counted(fewestSongsOnAlbum - album.songCount, "more song") + " and it can come out."},
                   {"button", "SET PRICING (" + price(album.price) + ")"},
                   {"MARKETING", withDecimals(album.marketingScore, 0), "goToSetAlbumMarketing 23"},
                   {"MARKETING: note", "of " + std::to_string(135 + 5 + album.songCount)},
                   {"RELEASE: price", priceText(albumReleaseCost)}} +
         songFigures(state, "Night Bus");
}

Standings albumStatistics(Game& twin) {
  const GameState& state = twin.state;
  const Album& album = albumTitled(state, "First Light");
  const Weeks weeks = weeksOf(state, album);
  return Standings{{"Sold (2)", withCommas(album.albumsSold)},
                   {"Best week", withCommas(weeks.best())},
                   {"Latest week", withCommas(weeks.counts.back())},
                   {"Earned", currency(weeks.earned())},
                   {"Price", price(album.price)},
                   {"Your share", percentage(album.percentageOfEarnings * 100)}} +
         weekFigures("Sold", album.albumsSold, weeksLeft(remainingLife(state, album)), weeks) +
         certificationFigures("Certified Bronze", album.albumsSold, "Silver", 250'000) +
         weekTable("Sold", weeks, state.yearNumber);
}

Standings pricingFigures(Game& twin) {
  const GameState& state = twin.state;
  const Album& album = albumTitled(state, "Second Wind");
  Standings standings = {
      {"subtitle", "Second Wind · now " + price(album.price)},
      {"text", "A copy costs " + price(state.albumProductionCosts) + " to make, and your share of what is left is " +
                   percentage(album.percentageOfEarnings * 100) + "."}};
  for (const double dollars : albumPrices) {
    const double earned = album.percentageOfEarnings * (dollars - state.albumProductionCosts);
    standings.push_back({"Price of a copy: " + price(dollars) + ": note", "You earn " + price(earned) + " a copy"});
  }
  return standings;
}

std::vector<ScreenFigures> screens() {
  return {
      {.segue = "goToAlbumDetail", .argument = "20", .figures = albumOutFigures},
      {.segue = "goToAlbumDetail", .argument = "23", .figures = albumInProductionFigures},
      {.segue = "goToAlbumChartDetail", .argument = "20", .figures = albumStatistics},
      {.segue = "goToSetAlbumPricing",
       .argument = "23",
       .figures = pricingFigures,
       .noFigures = {"Price of a copy*", "button"}},
      {.segue = "goToAddToAlbum",
       .argument = "21",
       .figures =
           [](Game& twin) {
             Standings standings = albumFigures(twin.state, "Third Rail");
             standings[0].leadsTo = "";  // a press takes the song there
             return standings;
           }},
      {.segue = "goToSetAlbumMarketing", .argument = "23", .figures = marketingFigures, .presses = {{"plan:2", ""}}},
      {.segue = "goToCreateAnAlbum", .figures = [](Game&) { return Standings(); }},
  };
}

const FiguresOf albums{.screens = screens};

}  // namespace

}  // namespace backbeat
