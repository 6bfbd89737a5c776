#include <cmath>

#include "career/skill.h"
#include "core/money.h"
#include "music/figures.h"
#include "music/guests.h"
#include "music/production_options.h"
#include "music/song_creation.h"
#include "music/song_release.h"
#include "music/streaming.h"

namespace backbeat {

namespace {

Standings songOutFigures(Game& twin) {
  const GameState& state = twin.state;
  const Song& song = songTitled(state, "Glass Harbour");
  return Standings{{"cover: text", "First Light\nfeat. Bo Crow, Cy Dell\nRELEASED " + std::to_string(song.releaseYear)},
                   {"cover: badge", "E"},
                   {"Rating", withDecimals(song.productionRating, 1)},
                   {"Virality", withDecimals(song.viralityScore, 1)},
                   {"Chart", rank(song.chartRanking)},
                   {"MUSIC VIDEO", "", "goToCreateMusicVideo 15"}} +
         weekFigures("Streams", song.totalListen, weeksLeft(remainingLife(state, song)), weeksOf(state, song)) +
         certificationFigures("Certified Silver", song.totalListen, "Gold", 75'000'150);
}

/// A song with a video.
Standings filmedSongFigures(Game& twin) {
  const GameState& state = twin.state;
  const Song& song = songTitled(state, "Tin Roof");
  return Standings{{"cover: text", "Single\nRELEASED " + std::to_string(song.releaseYear)},
                   {"Rating", withDecimals(song.productionRating, 1)},
                   {"Virality", withDecimals(song.viralityScore, 1)},
                   {"MUSIC VIDEO", "7.6M views", "goToYouViewVideoDetail 31"}} +
         weekFigures("Streams", song.totalListen, weeksLeft(remainingLife(state, song)), weeksOf(state, song)) +
         certificationFigures("Certified Bronze", song.totalListen, "Silver", 37'500'150);
}

Standings songInProductionFigures(Game& twin) {
  const Song& song = songTitled(twin.state, "Night Bus");
  return {{"Production rating", withDecimals(song.productionRating, 2)},
          {"Production rating: share", shareText(song.productionRating / 100)},
          {"Virality", withDecimals(song.viralityScore, 2)},
          {"Virality: share", shareText(song.viralityScore / 100)},
          {"button", "Production +1.0"},  // gives 1.5: intended
          {"Production +1.0: price", priceText(*productionBoostCost(song))},
          {"button (2)", "Virality +0.5"},
          {"Virality +0.5: price", priceText(*viralityBoostCost(song))},
          {"Announce on Chirp: price", "5 energy"},
          {"Marketing", withDecimals(song.marketingScore, 0), "goToSetSongMarketing 21"},
          {"Marketing: note", "of 135"},
          {"Add to album", "", "goToAddToAlbum 21"},
          {"RELEASE: price", priceText(releaseCost)}};
}

Standings songStatistics(Game& twin) {
  const GameState& state = twin.state;
  const Song& song = songTitled(state, "Glass Harbour");
  const BillboardSong& row = chartRowTitled(state, "Glass Harbour");
  const Weeks weeks = weeksOf(state, song);
  return Standings{
             {"Streams (2)", withCommas(song.totalListen)},
             {"Best week", withCommas(weeks.best())},
             {"Latest week", withCommas(weeks.counts.back())},
             {"Earned", currency(weeks.earned())},
             {"1,000 streams", price(song.streamPayRate * 1'000)},
             {"Your share", percentage(song.percentageOfEarnings * 100)},
             {"Peak", rank(row.peakPosition)},
             {"On chart", counted(row.weeksOnChart, "week")},
             {"At number one", counted(row.weeksAtOne, "week")},
             {"text", "Entered in " + std::to_string(row.yearDebut) + ", now at " + rank(song.chartRanking) + "."}} +
         weekFigures("Streams", song.totalListen, weeksLeft(remainingLife(state, song)), weeks) +
         certificationFigures("Certified Silver", song.totalListen, "Gold", 75'000'150) +
         weekTable("Streams", weeks, state.yearNumber);
}

Standings optionFigures(const std::string& label, const std::vector<ProductionOption>& options) {
  Standings standings;
  for (const ProductionOption& option : options) {
    const std::string where = label + ": " + option.name;
    standings.push_back({where + ": note", "Rating | " + std::to_string(option.rating)});
    if (option.cost > 0) standings.push_back({where + ": price", currency(static_cast<double>(option.cost))});
  }
  return standings;
}

Standings newSongFigures(Game& twin) {
  const ProductionOptions options = drawProductionOptions(twin);
  return Standings{{"Featured artists", "", "goToFeaturedArtists"},
                   {"Album (2)", "Second Wind (2)"},
                   {"Album (3)", "Third Rail (11)"},
                   {"Create song: price",
                    priceText({10, static_cast<double>(options.writing[2].cost + options.musicality[1].cost +
                                                       options.studio[3].cost)})}} +
         optionFigures("Songwriting", options.writing) + optionFigures("Musicality", options.musicality) +
         optionFigures("Studio", options.studio);
}

Standings guestFigures(Game& twin) {
  const GameState& state = twin.state;
  Guest nova;
  guestFor(state, firstSignedArtistPick + 7, nova);
  Standings standings = {{"subtitle", "0 of 3 added"},
                         {"Your skill rating", std::to_string(overallSkillRating(state))},
                         {"Nova Reed: subtitle",
                          "Rating " + withDecimals(nova.rating, 0) + " · Virality " + withDecimals(nova.virality, 0)}};
  for (const FeaturedArtist& guest : guestTable(state)) {
    const bool isShy = guest.minimumRating > overallSkillRating(state);
    standings.push_back({guest.name + ": subtitle",
                         "Rating " + withDecimals(guest.rating, 0) + " · Virality " + withDecimals(guest.virality, 0) +
                             (isShy ? "\nAsks for a skill of " + std::to_string(guest.minimumRating) : "")});
    standings.push_back({guest.name + ": price",
                         priceText({0, std::trunc(static_cast<double>(guest.cost) * state.contractFeatureDiscount)})});
  }
  return standings;
}

template <class T>
Standings nameFigures(const std::vector<T>& people, const std::string& segue) {
  Standings standings;
  for (const T& one : people) {
    standings.push_back({one.name, currency(static_cast<double>(one.cost)), segue + " " + std::to_string(one.id)});
  }
  return standings;
}

std::vector<ScreenFigures> screens() {
  return {
      {.segue = "goToSongDetail", .argument = "15", .figures = songOutFigures},
      {.segue = "goToSongDetail", .argument = "27", .figures = filmedSongFigures},
      {.segue = "goToSongDetail", .argument = "21", .figures = songInProductionFigures},
      {.segue = "goToSongChartDetail", .argument = "15", .figures = songStatistics},
      {.segue = "goToCreateASong",
       .figures = newSongFigures,
       .presses = {{"writing", "2"}, {"musicality", "1"}, {"studio", "3"}}},
      {.segue = "goToSetSongMarketing", .argument = "21", .figures = marketingFigures, .presses = {{"plan:2", ""}}},
      {.segue = "goToFeaturedArtists", .figures = guestFigures},
      {.segue = "goToChangeFeaturedArtistName",
       .figures = [](Game& twin) { return nameFigures(guestTable(twin.state), "goToChangeFeaturedArtistName"); }},
      {.segue = "goToChangeCameoNames",
       .figures = [](Game& twin) { return nameFigures(cameoTable(twin.state), "goToChangeCameoNames"); }},
      {.segue = "goToEnterName", .figures = [](Game&) { return Standings(); }, .noFigures = {"subtitle"}},
  };
}

const FiguresOf songs{.screens = screens};

}  // namespace

}  // namespace backbeat
