#include "core/money.h"
#include "music/certifications.h"
#include "music/chart.h"
#include "music/figures.h"
#include "music/song_creation.h"
#include "turn/week_cycle.h"

namespace backbeat {

namespace {

/// What the tab tells whether it lists songs or albums.
Standings tabFigures(const GameState& state) {
  return {{"subtitle", "6 songs and 2 albums released"},
          {"Create a Song: price", "10 energy"},
          {"Monthly Listeners", withCommas(state.totalFans), "goToMonthlyListenerDetail"},
          {"Billboard 100", "", "goToBillboard"},
          {"Certifications", "", "goToCertification"},
          {"GRAM Awards", "1 win", "goToGramAwardDetail"},
          {"GRAM Awards: subtitle", "2 nominations"},
          {"Artist Profile", "", "goToArtistProfile"},
          {"On Tour", "", "goToTourDetails"},
          {"Festivals", "2", "goToFestivalArchive"},
          {"YouVideo", abbreviated(static_cast<double>(state.youVideoSubscriberCount)), "goToYouVideo"},
          {"YouVideo: subtitle", "3 music videos"},
          {"My Label", "", "goToLabelDetail"},
          {"My Label: subtitle", state.myLabelName}};
}

Standings songTabFigures(Game& twin) {
  const GameState& state = twin.state;
  return tabFigures(state) + songFigures(state, "Paper Boats") + songFigures(state, "Glass Harbour") +
         songFigures(state, "Low Tide") + songFigures(state, "Night Bus") + songFigures(state, "Fever Line") +
         songFigures(state, "Tin Roof") + songFigures(state, "Small Hours");
}

Standings albumTabFigures(Game& twin) {
  const GameState& state = twin.state;
  return tabFigures(state) + albumFigures(state, "First Light") + albumFigures(state, "Second Wind") +
         albumFigures(state, "Old Coats") + albumFigures(state, "Third Rail");
}

/// How often each metal was won, and where it never was, what it takes.
struct Metal {
  const char* name;
  int64_t albums;
  int64_t songs;
  const char* copies;
  const char* streams;
};

Standings certificationsFigures(Game& twin) {
  const GameState& state = twin.state;
  const CertificationCounts counts = countCertifications(state);
  const Metal metals[] = {{"Diamond", counts.diamondAlbums, counts.diamondSongs, "at 10.0M", "at 1.5B"},
                          {"Platinum", counts.platinumAlbums, counts.platinumSongs, "at 1.0M", "at 150.0M"},
                          {"Gold", counts.goldAlbums, counts.goldSongs, "at 500K", "at 75.0M"},
                          {"Silver", counts.silverAlbums, counts.silverSongs, "at 250K", "at 37.5M"},
                          {"Bronze", counts.bronzeAlbums, counts.bronzeSongs, "at 125K", "at 18.7M"}};
  Standings standings = {{"Black", withCommas(counts.blackAlbums)}, {"Black (2)", withCommas(counts.blackSongs)}};
  for (const Metal& metal : metals) {
    const std::string name = metal.name;
    standings.push_back({name, withCommas(metal.albums)});
    standings.push_back({name + " (2)", withCommas(metal.songs)});
    if (metal.albums == 0) standings.push_back({name + ": note", metal.copies});
    if (metal.songs == 0) standings.push_back({name + (metal.albums == 0 ? ": note (2)" : ": note"), metal.streams});
  }
  return standings + certificationFigures("Tin Roof", songTitled(state, "Tin Roof").totalListen, "Silver", 37'500'150) +
         certificationFigures("Glass Harbour", songTitled(state, "Glass Harbour").totalListen, "Gold", 75'000'150) +
         certificationFigures("Fever Line", songTitled(state, "Fever Line").totalListen, "Platinum", 150'000'150);
}

Standings listenerFigures(Game& twin) {
  const std::vector<int64_t>& data = twin.state.monthlyListenerData;
  const int64_t change = data[2] - data[1];
  const double percent = static_cast<double>(change) / static_cast<double>(data[1]) * 100;
  return {{"Listeners", withCommas(twin.state.totalFans)},
          {"Listeners: note", withCommas(change) + " new listeners this week (" + withDecimals(percent, 2) + "%)"},
          {"Monthly Listeners: note", withCommas(data[2] - data[0]) + " in the past six months"},
          {"Monthly Listeners: points", pointsText({data.begin(), data.end()})}};
}

/// A row of the chart: its ranks, its record, who sings, and where it leads.
Standings chartFigures(const BillboardSong& row, const std::string& artists, const std::string& arrow) {
  std::string way;
  if (row.songId < signedArtistSongOffset) way = "goToSongDetail " + std::to_string(row.songId);
  if (row.songId > featuredSongOffset) way = "goToFeaturedOnDetail " + std::to_string(row.songId - featuredSongOffset);
  Standings standings = {{row.songTitle, arrow + std::to_string(row.rankThisWeek), way},
                         {row.songTitle + ": subtitle", artists + "\nPeak " + std::to_string(row.peakPosition) + " · " +
                                                            counted(row.weeksOnChart, "week")},
                         {row.songTitle + ": note", row.rankLastWeek == 0 ? "–" : std::to_string(row.rankLastWeek)}};
  if (row.rankLastWeek == 0) standings.push_back({row.songTitle + ": badge", "NEW"});
  return standings;
}

Standings billboardFigures(Game& twin) {
  const GameState& state = twin.state;
  return Standings{{"subtitle", "Week " + std::to_string(state.weekNumber) + ", " + std::to_string(state.yearNumber)}} +
         chartFigures(chartRowTitled(state, "Glass Harbour"), "Mara Voss\nfeat. Bo Crow, Cy Dell", "▲ ") +
         chartFigures(chartRowTitled(state, "Rosewater"), "Nova Reed", "▼ ") +
         chartFigures(chartRowTitled(state, "Borrowed Time"), "Gil Ives", "");
}

/// After the week in which two songs of the residual phase enter the chart: their rows name the first guest alone.
Standings nextBillboardFigures(Game& twin) {
  const GameState& state = twin.state;
  return Standings{{"subtitle", "Week " + std::to_string(state.weekNumber) + ", " + std::to_string(state.yearNumber)}} +
         chartFigures(chartRowTitled(state, "Paper Boats"), "Mara Voss\nfeat. Ann Bright", "") +
         chartFigures(chartRowTitled(state, "Fever Line"), "Mara Voss\nfeat. Ed Gray", "") +
         chartFigures(chartRowTitled(state, "Glass Harbour"), "Mara Voss\nfeat. Bo Crow, Cy Dell", "▲ ") +
         chartFigures(chartRowTitled(state, "Rosewater"), "Nova Reed", "▼ ") +
         chartFigures(chartRowTitled(state, "Borrowed Time"), "Gil Ives", "");
}

Standings historyFigures(Game& twin) {
  Standings standings;
  const std::pair<const char*, const char*> rows[] = {{"Borrowed Time", "Gil Ives"},
                                                      {"Glass Harbour", "Mara Voss\nfeat. Bo Crow, Cy Dell"},
                                                      {"Low Tide", "Mara Voss"},
                                                      {"Rosewater", "Nova Reed"}};
  for (const auto& [title, artists] : rows) {
    const BillboardSong& row = chartRowTitled(twin.state, title);
    Standings one = chartFigures(row, artists, "");
    one.resize(3);
    one[0].says = std::to_string(row.yearDebut);
    one[2].says = std::to_string(row.weeksAtOne);
    standings = standings + one;
  }
  return standings;
}

std::vector<ScreenFigures> screens() {
  return {
      {.segue = "music", .figures = songTabFigures},
      {.segue = "music", .figures = albumTabFigures, .presses = {{"kind", "1"}}},
      {.segue = "goToCertification", .figures = certificationsFigures},
      {.segue = "goToMonthlyListenerDetail", .figures = listenerFigures},
      {.segue = "goToBillboard", .figures = billboardFigures, .noFigures = {"title"}},
      {.segue = "goToBillboard",
       .figures = nextBillboardFigures,
       .before = endWeekWithoutLabel,
       .noFigures = {"title"}},
      {.segue = "goToBillboard", .figures = historyFigures, .presses = {{"historyButton", ""}}},
  };
}

const FiguresOf reach{.screens = screens};

}  // namespace

}  // namespace backbeat
