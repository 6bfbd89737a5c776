#include "recognition/year_statistics.h"

#include <algorithm>
#include <map>

#include "core/calendar.h"
#include "core/numbers.h"
#include "core/sorting.h"
#include "core/week_rows.h"

namespace backbeat {

namespace {

/// Adds up the rows of a year, work by work.
class Sum {
 public:
  void add(int64_t week, int64_t id, const std::string& title, int64_t amount, double dollars, int64_t songId = 0) {
    year_.amount = backbeat::add(year_.amount, amount);
    year_.dollars += dollars;
    if (week >= 1 && static_cast<size_t>(week) <= weeksOfYear) {
      int64_t& sum = year_.weeks[static_cast<size_t>(week) - 1];
      sum = backbeat::add(sum, amount);
    }
    const auto [place, isNew] = places_.try_emplace(id, year_.works.size());
    if (isNew) year_.works.push_back({.id = id, .songId = songId});
    YearWork& work = year_.works[place->second];
    work.amount = backbeat::add(work.amount, amount);
    work.dollars += dollars;
    if (work.title != title) work.title = title;  // as it is called by now
  }

  YearOfKind done() {
    sortStably(year_.works, [](const YearWork& a, const YearWork& b) { return a.amount > b.amount; });
    return std::move(year_);
  }

 private:
  YearOfKind year_;
  std::map<int64_t, size_t> places_;  // of the works, by id
};

std::string nameOfTour(const GameState& state, int64_t tourId) {
  const RecordList<MusicTour>& venues = state.saveAllMusicTourList;
  const size_t found = venues.find([&](const MusicTour& venue) { return venue.tourId == tourId; });
  return found == venues.size() || venues[found].tourTitle.empty() ? "A tour" : venues[found].tourTitle;
}

YearOfKind toursOfYear(const GameState& state, int64_t year) {
  Sum sum;
  int64_t shows = 0;
  int64_t soldOut = 0;
  for (const WeeklyTourSales& show : rowsOfYear(state.saveAllWeeklyTourSales, year)) {
    sum.add(show.weekNumber, show.tourId, {}, show.seatsSold, show.tourRevenue);
    shows += 1;
    soldOut += show.soldOut == 1 ? 1 : 0;
  }
  YearOfKind tours = sum.done();
  tours.shows = shows;
  tours.soldOut = soldOut;
  for (YearWork& tour : tours.works) tour.title = nameOfTour(state, tour.id);
  return tours;
}

}  // namespace

YearOfKind yearOfKind(const GameState& state, YearKind kind, int64_t year) {
  Sum sum;
  switch (kind) {
    case YearKind::songs:
      for (const auto& row : rowsOfYear(state.saveAllWeeklySongListens, year)) {
        sum.add(row.weekNumber, row.songId, row.songTitle, row.songListens, row.totalStreamRevenue, row.songId);
      }
      break;
    case YearKind::albums:
      for (const auto& row : rowsOfYear(state.saveAllWeeklyAlbumSales, year)) {
        sum.add(row.weekNumber, row.albumId, row.albumTitle, row.albumSales, row.albumRevenue);
      }
      break;
    case YearKind::tours: return toursOfYear(state, year);
    case YearKind::merch:
      for (const auto& row : rowsOfYear(state.saveAllMerchWeeklySales, year)) {
        sum.add(row.weekNumber, row.merchId, row.merchName, row.unitsSold, row.merchGross);
      }
      break;
    case YearKind::videos:
      for (const auto& row : rowsOfYear(state.saveAllWeeklyVideoViews, year)) {
        sum.add(row.weekNumber, row.videoId, row.songTitle, row.videoViews, row.totalViewRevenue, row.songId);
      }
      break;
  }
  return sum.done();
}

bool recordsAreGone(const GameState& state, int64_t year) {
  return year < state.yearNumber - yearsOfOwnMusic && rowsOfYear(state.saveAllWeeklySongListens, year).empty() &&
         rowsOfYear(state.saveAllWeeklyAlbumSales, year).empty();
}

}  // namespace backbeat
