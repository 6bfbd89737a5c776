#include "label/accounts.h"

#include "career/ledger.h"
#include "core/reported_week.h"
#include "core/week_rows.h"
#include "label/office.h"

namespace backbeat {

double lastWeeksRoyalties(const GameState& state) {
  const CalendarWeek week = reportedWeek(state);
  double sum = 0;
  for (const auto& row : rowsOfWeek(state.saveAllSignedArtistWeeklySongListens, week)) sum += row.totalStreamRevenue;
  for (const auto& row : rowsOfWeek(state.saveAllSignedArtistWeeklyAlbumSales, week)) sum += row.albumRevenue;
  return sum * (state.labelRevenueBonus / 100 + 1);
}

double runningCosts(const GameState& state) {
  double sum = officeCosts(state);
  for (const WeeklyLineItem& item : state.saveAllWeeklyLineItems) {
    if (item.typeOfExpense >= expense::firstStaff && item.typeOfExpense <= expense::lastLabelCost) sum += item.amount;
  }
  return sum;
}

double storedRoyalties(const GameState& state) {
  double sum = 0;
  for (const SignedArtistWeeklyAlbumSales& row : state.saveAllSignedArtistWeeklyAlbumSales) sum += row.albumRevenue;
  for (const SignedArtistWeeklySongListens& row : state.saveAllSignedArtistWeeklySongListens) {
    sum += row.totalStreamRevenue;
  }
  return sum;
}

}  // namespace backbeat
