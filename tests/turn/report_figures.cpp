#include <cmath>
#include <numeric>

#include "core/money.h"
#include "turn/figures.h"
#include "turn/week_cycle.h"
#include "turn/weekly_report.h"

namespace backbeat {

namespace {

/// What one song or album did in the week.
Standings weekFigures(const std::string& title, const std::string& album, int64_t count, const char* badge) {
  Standings standings = {{title, withCommas(count)}};
  if (*badge) standings.push_back({title + ": badge", badge});
  if (!album.empty()) standings.push_back({title + ": subtitle", album});
  return standings;
}

Standings songWeek(const GameState& state, const char* title, const char* badge, const char* besides = "") {
  const auto weeks = state.saveAllWeeklySongListens.historyOf(songTitled(state, title).songId);
  const WeeklySongListens& week = state.saveAllWeeklySongListens[weeks.back()];
  Standings standings = weekFigures(title, week.albumTitle + besides, week.songListens, badge);
  const int64_t change = week.songListens - state.saveAllWeeklySongListens[weeks[weeks.size() - 2]].songListens;
  standings.push_back({std::string(title) + ": note", (change > 0 ? "+" : "") + withCommas(change) + " streams"});
  return standings;
}

double sumOf(const std::vector<double>& amounts) { return std::accumulate(amounts.begin(), amounts.end(), 0.0); }

/// Of the amounts as they are told, in whole dollars.
double toldSumOf(std::vector<double> amounts) {
  for (double& amount : amounts) amount = std::nearbyint(amount);
  return sumOf(amounts);
}

/// What the artist posts about the show when the report opens.
Standings showFigures(Game& twin) {
  buildWeeklyReport(twin);
  const Chirp& post = twin.state.saveAllChirpList[0];
  const auto count = [](int64_t number) { return abbreviated(static_cast<double>(number)); };
  return {{"Mara Voss: age", "0h"},
          {"Mara Voss: message", post.message},
          {"Mara Voss: comments", count(post.commentCount)},
          {"Mara Voss: reChirps", count(post.reChirpCount)},
          {"Mara Voss: likes", count(post.likeCount)}};
}

Standings reportFigures(Game& twin) {
  const GameState& state = twin.state;
  const auto paper = state.saveAllWeeklySongListens.historyOf(songTitled(state, "Paper Boats").songId);
  const double streams = state.saveAllWeeklySongListens[paper.back()].totalStreamRevenue;  // of the top song alone
  const double albums = earned(state.saveAllWeeklyAlbumSales, state, &WeeklyAlbumSales::albumRevenue);
  const WeeklyVideoViews& film = state.saveAllWeeklyVideoViews.back();
  const double videos = film.totalViewRevenue;
  const double touring = state.saveAllWeeklyTourSales[1].tourRevenue;
  const double festival = state.saveAllFestivalList[1].payment;
  const double verses = state.saveAllFeaturedOnWeeklySongListens[1].totalStreamRevenue;
  const double label = labelAlbums(state) + labelStreams(state);
  const double family = state.saveAllChildList[0].weeklyFinancialCost;
  const double office = 3 * state.labelOfficePerkSpend + state.labelOfficeRent;
  const double rent = entry(state, "Rent of the flat");
  double costs = 0;
  for (const Entry& one : entries) costs += one.isExpense ? entry(state, one.title) : 0;
  const std::vector<double> income = {
      streams, albums, videos, touring, festival, verses, merchOf(state), label, state.weeklyJobIncome, rent};
  const std::vector<double> expenses = {costs, family, office};
  const double net = sumOf(income) - sumOf(expenses);
  const double cash = state.totalCashAvailable;
  const auto sales = state.saveAllWeeklyAlbumSales.historyOf(20);
  const int64_t fans = twin.launch.weeklyFanChange;
  return Standings{{"title", "Week 36"},
                   {"subtitle", "2049 · Weekly report"},
                   {"poster", "“Paper Boats” is number one!"},
                   {"poster: figure", "1"},
                   {"A song earned " + currency(streams) + " in a week: subtitle", "Your first week above $100,000"},
                   {"A song earned " + currency(streams) + " in a week: badge", "FIRST"},
                   {"Net", currency(std::nearbyint(sumOf(income)) - toldSumOf(expenses))},
                   {"Net: note", "show " + currency(touring)},
                   {"Listeners", (fans > 0 ? "+" : "") + withCommas(fans) + " FANS"},
                   {"Listeners: note", "now " + withCommas(state.totalFans)},
                   {"Borrowed Time", withCommas(state.saveAllFeaturedOnWeeklySongListens[1].songListens)},
                   {"Borrowed Time: subtitle", "Gil Ives"},
                   {"Nova Reed", withCommas(state.saveAllSignedArtistWeeklySongListens[1].songListens)},
                   {film.songTitle, withCommas(film.videoViews)},
                   {"Harbour Bowl", withCommas(state.saveAllWeeklyTourSales[1].seatsSold)},
                   {"Harbour Bowl: subtitle", "Lisbon"},
                   {"Meadow Days", "★★★"},
                   {"Meadow Days: subtitle", "A storm with a tune"},
                   {"Streams", currency(streams)},
                   {"Streams: note", "Paper Boats"},
                   {"Albums", currency(albums)},
                   {"Videos", currency(videos)},
                   {"Touring", currency(touring)},
                   {"Festival", currency(festival)},
                   {"Featured on", currency(verses)},
                   {"MERCH SALES", currency(merchOf(state))},
                   {"MERCH SALES: note", counted(state.saveAllMerchWeeklySales[1].unitsSold, "unit")},
                   {"My label", currency(label)},
                   {"Job", currency(state.weeklyJobIncome)},
                   {"Standing income", currency(rent)},
                   {"Total revenue", currency(sumOf(income))},
                   {"Standing expenses", currency(-costs)},
                   {"Family", currency(-family)},
                   {"Office", currency(-office)},
                   {"Total cost", currency(-toldSumOf(expenses))},
                   {"Energy", std::to_string(state.totalEnergyAvailable)},
                   {"Energy: note", "of " + std::to_string(state.totalEnergyMax)},
                   {"Cash", currency(cash + net)}} +
         showFigures(twin) + songWeek(state, "Paper Boats", "#1") + songWeek(state, "Fever Line", "DEBUT") +
         songWeek(state, "Glass Harbour", "PEAK") + songWeek(state, "Tin Roof", "CERTIFIED") +
         songWeek(state, "Small Hours", "", " · best week") +
         weekFigures("First Light", "", state.saveAllWeeklyAlbumSales[sales.back()].albumSales, "CERTIFIED");
}

std::vector<ScreenFigures> screens() {
  return {
      {.segue = "goToWeeklySummary",
       .figures = reportFigures,
       .before = endWeekWithoutLabel,
       .noFigures = {"card (*", "card: *"}},
  };
}

const FiguresOf report{.screens = screens};

}  // namespace

}  // namespace backbeat
