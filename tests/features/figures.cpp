#include "music/figures.h"
#include "core/money.h"
#include "features/featured_streams.h"
#include "features/verse_offer.h"

namespace backbeat {

namespace {

Standings offerFigures(Game& twin) {
  const VerseOffer offer = drawVerseOffer(twin);
  const int64_t chance = negotiationChance(twin.state, offer, 5);
  return {{"poster: text", offer.artistName + " (" + withDecimals(offer.rating, 0) +
                               ") is interested in having you feature on their track - " + offer.title},
          {"Fee at once", currency(static_cast<double>(offer.fee))},
          {"Share", std::to_string(offer.royalty) + "%"},
          {"Track rating", withDecimals(offer.trackRating, 1)},
          {"Track rating: note", counted(static_cast<int64_t>(offer.trackRating) + 1, "week")},
          {"Your share", std::to_string(offer.royalty + 5) + "%"},
          {"Your share: note", "+5 points"},
          {"Chance", std::to_string(chance) + "%"},
          {"Chance: share", shareText(static_cast<double>(chance) / 100)},
          {"NEGOTIATE: price", "25 energy"},
          {"ACCEPT: price", "10 energy"}};
}

void withoutArtists(Game& game) { game.state.saveAllSignedArtistList.clear(); }

/// The coin falls on the label's own artist.
Standings ownArtistsOfferFigures(Game& twin) {
  const VerseOffer offer = drawVerseOffer(twin);
  const std::string share = std::to_string(offer.royalty) + "%";
  return {{"poster: text", offer.artistName + " (" + withDecimals(offer.rating, 0) +
                               ") is interested in having you feature on their track - " + offer.title},
          {"Share", share},
          {"Track rating", withDecimals(offer.trackRating, 1)},
          {"Track rating: note", counted(static_cast<int64_t>(offer.trackRating) + 1, "week")},
          {"Your share", share},
          {"NEGOTIATE: price", "25 energy"},
          {"ACCEPT: price", "10 energy"}};
}

Standings verseFigures(Game& twin) {
  const GameState& state = twin.state;
  const FeaturedOn& verse = state.saveAllFeaturedOnList[0];
  const BillboardSong& row = chartRowTitled(state, "Borrowed Time");
  Weeks weeks;
  for (const FeaturedOnWeeklySongListens& week : state.saveAllFeaturedOnWeeklySongListens) {
    weeks.counts.push_back(week.songListens);
    weeks.dollars.push_back(week.totalStreamRevenue);
    weeks.weeks.push_back(week.weekNumber);
  }
  return Standings{{"cover: text", "Gil Ives\nfeat. Mara Voss\nReleased in " + std::to_string(verse.releaseYear)},
                   {"Rating", withDecimals(verse.productionRating, 1)},
                   {"Virality", withDecimals(verse.viralityScore, 1)},
                   {"Marketing", withDecimals(verse.marketingScore, 0)},
                   {"Earned", currency(weeks.earned())},
                   {"Fee", currency(verse.flatFee)},
                   {"Your share", percentage(verse.percentageOfEarnings * 100)},
                   {"Best week", withCommas(weeks.best())},
                   {"Latest week", withCommas(weeks.counts.back())},
                   {"Peak", rank(row.peakPosition)},
                   {"On chart", counted(row.weeksOnChart, "week")},
                   {"At number one", counted(row.weeksAtOne, "week")},
                   {"text", "Entered in " + std::to_string(row.yearDebut) + ", now at #83."}} +
         weekFigures("Streams", verse.totalListen, weeksLeft(remainingLife(state, verse)), weeks) +
         weekTable("Streams", weeks, state.yearNumber);
}

std::vector<ScreenFigures> screens() {
  return {
      {.segue = "goToFeatureForAnArtist", .figures = offerFigures, .before = withoutArtists},
      {.segue = "goToFeatureForAnArtist", .figures = ownArtistsOfferFigures},
      {.segue = "goToFeaturedOnDetail", .argument = "8", .figures = verseFigures},
  };
}

const FiguresOf verses{.screens = screens};

}  // namespace

}  // namespace backbeat
