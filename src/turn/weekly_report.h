// The second half of the turn: opening the report gathers the records of the week that ended and settles its cash.
#pragma once

#include <optional>
#include <vector>

#include "core/game.h"
#include "core/reported_week.h"
#include "core/week_rows.h"

namespace backbeat {

/// What the report knows while it is open; never saved.
struct WeeklyReport {
  CalendarWeek week;  ///< the week reported: the calendar has moved on already
  std::vector<WeeklyAlbumSales> weeklyAlbumSales;
  std::vector<WeeklySongListens> weeklySongListens;  ///< most streams first
  std::vector<WeeklyTourSales> weeklyTourSales;
  std::vector<SignedArtistWeeklySongListens> weeklyEarningsSignedArtistSongs;
  std::vector<SignedArtistWeeklyAlbumSales> weeklyEarningsSignedArtistAlbums;
  std::vector<FeaturedOnWeeklySongListens> weeklyFeaturedOnSongListens;
  std::vector<MerchWeeklySales> weeklyMerchSales;
  std::vector<WeeklyVideoViews> weeklyMusicVideoViews;
  std::optional<Festival> festival;  ///< the first one played that week
  int64_t showChirpId = 0;           ///< what the artist posted about the show; 0 without one

  // The settlement, line by line, in dollars.
  double totalAlbumRevenue = 0;
  double streams = 0;  ///< of the most streamed song alone: the others are shown and pay nothing, on purpose
  double tour = 0;     ///< negative: it stands among the expenses
  double festivalPayment = 0;
  double label = 0;
  double featured = 0;
  double merch = 0;  ///< shown and counted, though its cash moved at the sale
  double videos = 0;
  double job = 0;
  double standingIncome = 0;
  double standingExpenses = 0;
  double family = 0;
  double labelExpenses = 0;  ///< perks and rent
  double bonusPaidBack = 0;  ///< the advance of a contract that ended with this report; moved by that rule itself
  double totalRevenue = 0;
  double totalExpenses = 0;  ///< of the settlement, without what was paid back
  int64_t merchUnits = 0;

  // What happened around the settlement.
  double cashBefore = 0;     ///< dollars
  double exits = 0;          ///< what startups paid when they were sold or listed, in dollars
  double settlement = 0;     ///< what a divorce took, in dollars
  bool hasAppeared = false;  ///< the chain of the first appearance has run
};

/// False in the first week of a life, also that of an heir: no week before it is theirs to tell of.
bool anyWeekReported(const GameState& state);

/// Gathers the records of the reported week.
void gatherRecords(const GameState& state, WeeklyReport& report);

/// The same, with what the papers write about its festival, and tells the feed of its show.
WeeklyReport buildWeeklyReport(Game& game);

/// Moves the week's net into the cash, which may fall below 0, and the label's costs into their total. Nothing can
/// refuse it. Runs exactly once a week.
void settleWeeklyCash(Game& game, WeeklyReport& report);

/// Dollars a week for the children who live in the family.
double familyCosts(const GameState& state);

/// Standing income less standing costs of the coming week: what the ledger, the job, the family and the label's office
/// come to without any release. A job whose contract has run out pays no more.
double standingWeeklyNet(const GameState& state);
/// What that net is made of, in a few words.
const char* standingNetCaption(const GameState& state);

}  // namespace backbeat
