// The rows of one week in a list that grows week by week.
#pragma once

#include <algorithm>
#include <span>

#include "core/record_list.h"

namespace backbeat {

/// A week of the calendar.
struct CalendarWeek {
  int64_t week = 0;
  int64_t year = 0;
  friend bool operator==(const CalendarWeek&, const CalendarWeek&) = default;
};

/// The rows of `list` that carry the week, oldest first. Rows are appended as the calendar runs, so those of the latest
/// weeks stand together near the end and the search walks back only as far as they begin.
template <class T>
std::span<const T> rowsOfWeek(const RecordList<T>& list, CalendarWeek week) {
  const auto weekOf = [](const T& row) { return CalendarWeek{row.weekNumber, row.yearNumber}; };
  const auto before = [](CalendarWeek a, CalendarWeek b) {
    return a.year != b.year ? a.year < b.year : a.week < b.week;
  };
  size_t end = list.size();
  while (end > 0 && before(week, weekOf(list[end - 1]))) --end;
  size_t begin = end;
  while (begin > 0 && weekOf(list[begin - 1]) == week) --begin;
  return list.stretch(begin, end);
}

/// The rows of `list` that carry the year, oldest first; found by halving, since they stand in the order of the
/// calendar.
template <class T>
std::span<const T> rowsOfYear(const RecordList<T>& list, int64_t year) {
  const auto firstFrom = [&](int64_t wanted) {
    size_t low = 0;
    for (size_t high = list.size(); low < high;) {
      const size_t middle = low + (high - low) / 2;
      if (list[middle].yearNumber < wanted) {
        low = middle + 1;
      } else {
        high = middle;
      }
    }
    return low;
  };
  const size_t begin = firstFrom(year);
  return list.stretch(begin, std::max(begin, firstFrom(year + 1)));
}

/// What the rows of a list tell when they are taken one by one from the first on. Kept from one time to the next: while
/// the list only grows, it goes on where it stopped, and a long career costs no more than a short one.
template <class Told>
class RunningTally {
 public:
  /// `take(told, row)` for each row that is not counted yet; what all of them tell.
  template <class T, class Take>
  const Told& over(const RecordList<T>& list, Take take) {
    if (rewrites_ != list.rewrites() || rows_ > list.size()) *this = RunningTally(list.rewrites());
    for (; rows_ < list.size(); ++rows_) take(told_, list[rows_]);
    return told_;
  }

  RunningTally() = default;

 private:
  explicit RunningTally(uint64_t rewrites) : rewrites_(rewrites) {}

  Told told_{};
  size_t rows_ = 0;
  uint64_t rewrites_ = 0;
};

}  // namespace backbeat
