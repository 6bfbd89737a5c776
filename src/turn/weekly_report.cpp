#include "turn/weekly_report.h"

#include <algorithm>
#include <array>

#include "career/ledger.h"
#include "core/bands.h"
#include "core/calendar.h"
#include "core/sorting.h"
#include "label/office.h"
#include "live/festivals.h"
#include "social/chirps.h"

namespace backbeat {

namespace {

constexpr std::array<std::string_view, 20> concertQuotes = {
    "Empty seats or not, we sang every word tonight.",
    "To everyone who came: you were louder than the room deserved.",
    "Small crowd, big hearts. Thank you for tonight!",
    "Not a full house, but it felt like home.",
    "Some nights you play for the few. They deserve it most.",
    "Tonight was intimate. I kind of loved it.",
    "Next time bring a friend, okay?",
    "We made a lot of noise for the people we had!",
    "Thank you for dancing in all that space.",
    "Every seat that was taken was taken by a legend.",
    "I could see every single face tonight. Beautiful.",
    "A quiet night, a loud encore. Goodnight!",
    "My voice is gone, my heart is full.",
    "The front row knew every line. I saw you!",
    "Rain, traffic, and you still came. Thank you.",
    "Tonight we played for us.",
    "That last chorus gave me chills.",
    "Half a room, twice the love.",
    "I'll be back, and you'll tell them you were here first.",
    "On to the next city. Thank you for having me!",
};

template <class T>
std::vector<T> gathered(const RecordList<T>& list, CalendarWeek week) {
  const std::span<const T> rows = rowsOfWeek(list, week);
  return {rows.begin(), rows.end()};
}

template <class T>
double sumOf(const std::vector<T>& rows, double T::*member) {
  double sum = 0;
  for (const T& row : rows) sum += row.*member;
  return sum;
}

std::optional<Festival> festivalPlayed(const GameState& state, CalendarWeek week) {
  const size_t found = festivalOfWeek(state, week);
  if (found == state.saveAllFestivalList.size()) return std::nullopt;
  return state.saveAllFestivalList[found];
}

/// The show of the week tells the feed how it went.
void chirpAboutShow(Game& game, WeeklyReport& report) {
  if (report.weeklyTourSales.empty()) return;
  const auto soldOut = std::find_if(report.weeklyTourSales.begin(), report.weeklyTourSales.end(),
                                    [](const WeeklyTourSales& show) { return show.soldOut == 1; });
  const std::string message = soldOut != report.weeklyTourSales.end() ? "Sold out show 🔥 " + soldOut->tourLocation
                                                                      : std::string(game.random.element(concertQuotes));
  postChirpForArtist(game, message, game.state.followerCount);
  report.showChirpId = game.state.chirpId;
}

void settleLedger(GameState& state, WeeklyReport& report) {
  for (const WeeklyLineItem& item : state.saveAllWeeklyLineItems) {
    (item.isExpense ? report.standingExpenses : report.standingIncome) += item.amount;
    if (item.typeOfExpense >= expense::firstStaff && item.typeOfExpense <= expense::lastLabelCost) {
      state.totalRecordLabelCost += item.amount;
    }
  }
}

void settleLabel(GameState& state, WeeklyReport& report) {
  if (state.isLabelLaunched < 1) return;
  report.label = (sumOf(report.weeklyEarningsSignedArtistSongs, &SignedArtistWeeklySongListens::totalStreamRevenue) +
                  sumOf(report.weeklyEarningsSignedArtistAlbums, &SignedArtistWeeklyAlbumSales::albumRevenue)) *
                 (1 + state.labelRevenueBonus / 100);
  report.labelExpenses += officeCosts(state);
  state.totalRecordLabelCost += report.labelExpenses;
}

}  // namespace

bool anyWeekReported(const GameState& state) {
  const bool hasBegun = state.weekNumberForTracking == 1 || state.ageAtTakeover == state.yearNumber;
  return !hasBegun || !state.monthlyListenerData.empty();
}

void gatherRecords(const GameState& state, WeeklyReport& report) {
  report.week = reportedWeek(state);
  report.weeklyAlbumSales = gathered(state.saveAllWeeklyAlbumSales, report.week);
  report.weeklySongListens = gathered(state.saveAllWeeklySongListens, report.week);
  report.weeklyTourSales = gathered(state.saveAllWeeklyTourSales, report.week);
  report.weeklyEarningsSignedArtistSongs = gathered(state.saveAllSignedArtistWeeklySongListens, report.week);
  report.weeklyEarningsSignedArtistAlbums = gathered(state.saveAllSignedArtistWeeklyAlbumSales, report.week);
  report.weeklyFeaturedOnSongListens = gathered(state.saveAllFeaturedOnWeeklySongListens, report.week);
  report.weeklyMerchSales = gathered(state.saveAllMerchWeeklySales, report.week);
  report.weeklyMusicVideoViews = gathered(state.saveAllWeeklyVideoViews, report.week);
  report.festival = festivalPlayed(state, report.week);
  sortStably(report.weeklySongListens,
             [](const WeeklySongListens& a, const WeeklySongListens& b) { return a.songListens > b.songListens; });
}

WeeklyReport buildWeeklyReport(Game& game) {
  WeeklyReport report;
  reviewFestival(game, reportedWeek(game.state));
  gatherRecords(game.state, report);
  chirpAboutShow(game, report);
  return report;
}

void settleWeeklyCash(Game& game, WeeklyReport& report) {
  GameState& state = game.state;
  ensureBasicNeeds(game);
  settleLedger(state, report);
  report.family = familyCosts(state);
  report.totalAlbumRevenue = sumOf(report.weeklyAlbumSales, &WeeklyAlbumSales::albumRevenue);
  if (!report.weeklySongListens.empty()) report.streams = report.weeklySongListens.front().totalStreamRevenue;
  if (!report.weeklyTourSales.empty()) report.tour = report.weeklyTourSales.front().tourRevenue;
  if (report.festival) report.festivalPayment = report.festival->payment;
  settleLabel(state, report);
  report.featured = sumOf(report.weeklyFeaturedOnSongListens, &FeaturedOnWeeklySongListens::totalStreamRevenue);
  for (const MerchWeeklySales& sales : report.weeklyMerchSales) {
    report.merch += sales.merchGross - sales.merchTransactionFees;
    report.merchUnits += sales.unitsSold;
  }
  report.videos = sumOf(report.weeklyMusicVideoViews, &WeeklyVideoViews::totalViewRevenue);
  report.job = state.weeklyJobIncome;

  // A tour week that lost money is an expense, not a smaller revenue.
  const double tourIncome = std::max(report.tour, 0.0);
  const double tourLoss = std::max(-report.tour, 0.0);
  report.totalExpenses = report.standingExpenses + report.family + tourLoss + report.labelExpenses;
  report.totalRevenue = report.videos + report.streams + report.featured + report.merch +
                        (report.standingIncome + tourIncome + report.festivalPayment + report.label) +
                        report.totalAlbumRevenue + report.job;
  state.totalCashAvailable += report.totalRevenue - report.totalExpenses;
  game.save(&GameState::totalCashAvailable, &GameState::totalRecordLabelCost);
}

double familyCosts(const GameState& state) {
  double sum = 0;
  for (const Child& child : state.saveAllChildList) {
    if (child.typeOfRelationship >= 1) sum += child.weeklyFinancialCost;
  }
  return sum;
}

double standingWeeklyNet(const GameState& state) {
  double net = (state.weeklyJobContractRemaining >= 1 ? state.weeklyJobIncome : 0) - familyCosts(state);
  for (const WeeklyLineItem& item : state.saveAllWeeklyLineItems) net += item.isExpense ? -item.amount : item.amount;
  return state.isLabelLaunched >= 1 ? net - officeCosts(state) : net;
}

const char* standingNetCaption(const GameState& state) {
  return state.isLabelLaunched >= 1 ? "Job, weekly entries, perks and rent" : "Job and weekly entries";
}

}  // namespace backbeat
