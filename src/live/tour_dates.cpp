#include "live/tour_dates.h"

#include "core/bands.h"

namespace backbeat {

namespace {

constexpr int64_t weeksOfYear = 52;
constexpr Band<int64_t, const char*> months[] = {{5, "JAN"},  {9, "Feb"},  {13, "Mar"}, {17, "Apr"},
                                                 {21, "May"}, {25, "Jun"}, {29, "Jul"}, {33, "Aug"},
                                                 {37, "Sep"}, {43, "Oct"}, {47, "Nov"}};

}  // namespace

std::string showDate(int64_t week) {
  if (week > weeksOfYear) week = (week - 1) % weeksOfYear + 1;
  const int64_t day = week % 5 == 0 ? 1 : week % 5 * 7;
  return std::string(bandFor(months, week, "Dec")) + " " + std::to_string(day);
}

}  // namespace backbeat
