#include "turn/income_statement.h"

#include <cmath>

#include "career/ledger.h"
#include "core/calendar.h"
#include "core/week_rows.h"
#include "live/festivals.h"
#include "turn/weekly_report.h"

namespace backbeat {

namespace {

template <class T>
double sumOf(const RecordList<T>& list, CalendarWeek week, double T::*amount) {
  double sum = 0;
  for (const T& row : rowsOfWeek(list, week)) sum += row.*amount;
  return sum;
}

/// The line of a standing expense. The tests run in this order, so that label costs past the salaries count as
/// lifestyle: intended.
double IncomeStatement::*lineOf(int64_t typeOfExpense) {
  if (typeOfExpense >= expense::firstInsurance && typeOfExpense <= expense::lastInsurance) {
    return &IncomeStatement::insurance;
  }
  if (typeOfExpense >= expense::firstStaff && typeOfExpense <= expense::lastStaff) return &IncomeStatement::officeStaff;
  if (typeOfExpense >= expense::firstMerch) return &IncomeStatement::merchandise;
  if (typeOfExpense < expense::firstProperty || typeOfExpense > expense::lastProperty) {
    return &IncomeStatement::lifestyle;
  }
  return &IncomeStatement::propertyTax;
}

void addIncome(const GameState& state, IncomeStatement& statement) {
  const CalendarWeek week = reportedWeek(state);
  statement.albums = sumOf(state.saveAllWeeklyAlbumSales, week, &WeeklyAlbumSales::albumRevenue);
  statement.streams = sumOf(state.saveAllWeeklySongListens, week, &WeeklySongListens::totalStreamRevenue);
  statement.touring = sumOf(state.saveAllWeeklyTourSales, week, &WeeklyTourSales::tourRevenue);
  statement.featuredStreams =
      sumOf(state.saveAllFeaturedOnWeeklySongListens, week, &FeaturedOnWeeklySongListens::totalStreamRevenue);
  for (const uint32_t i : state.saveAllFeaturedOnList.awake()) {
    const FeaturedOn& song = state.saveAllFeaturedOnList[i];
    if (song.releaseWeek == state.weekNumberForTracking - 1) statement.flatFees += song.flatFee;
  }
  const size_t festival = festivalOfWeek(state, week);
  if (festival != state.saveAllFestivalList.size()) statement.festival = state.saveAllFestivalList[festival].payment;
  if (state.isLabelLaunched >= 1) {
    const double share = 1 + state.labelRevenueBonus / 100;
    statement.labelAlbums =
        sumOf(state.saveAllSignedArtistWeeklyAlbumSales, week, &SignedArtistWeeklyAlbumSales::albumRevenue) * share;
    statement.labelStreams =
        sumOf(state.saveAllSignedArtistWeeklySongListens, week, &SignedArtistWeeklySongListens::totalStreamRevenue) *
        share;
  }
  for (const MerchWeeklySales& sales : rowsOfWeek(state.saveAllMerchWeeklySales, week)) {
    statement.merch += sales.merchGross - sales.merchTransactionFees;
  }
  statement.videos = sumOf(state.saveAllWeeklyVideoViews, week, &WeeklyVideoViews::totalViewRevenue);
}

void addExpenses(const GameState& state, IncomeStatement& statement) {
  for (const WeeklyLineItem& item : state.saveAllWeeklyLineItems) {
    if (item.isExpense) statement.*lineOf(item.typeOfExpense) += item.amount;
  }
  statement.family = familyCosts(state);
  statement.officePerks = state.labelOfficePerkSpend * static_cast<double>(state.saveAllEmployeeList.size());
  statement.officeRent = state.labelOfficeRent;
}

}  // namespace

double IncomeStatement::income() const {
  return albums + streams + touring + featuredStreams + flatFees + festival + labelAlbums + labelStreams + merch +
         videos;
}

double IncomeStatement::expenses() const {
  return insurance + officeStaff + merchandise + lifestyle + propertyTax + family + officePerks + officeRent;
}

IncomeStatement incomeStatement(const GameState& state) {
  IncomeStatement statement;
  addIncome(state, statement);
  addExpenses(state, statement);
  return statement;
}

IncomeStatement toldStatement(const GameState& state) {
  IncomeStatement told = incomeStatement(state);
  for (double* line :
       {&told.albums, &told.streams, &told.touring, &told.featuredStreams, &told.flatFees, &told.festival,
        &told.labelAlbums, &told.labelStreams, &told.merch, &told.videos, &told.insurance, &told.officeStaff,
        &told.merchandise, &told.lifestyle, &told.propertyTax, &told.family, &told.officePerks, &told.officeRent}) {
    *line = std::nearbyint(*line);
  }
  return told;
}

}  // namespace backbeat
