// The dates of shows as tours announce them.
#pragma once

#include <cstdint>
#include <string>

namespace backbeat {

/// "Mar 14" for a week of the year; weeks past the year's end begin the next. Months are of uneven length, and January
/// shouts: intended.
std::string showDate(int64_t week);

}  // namespace backbeat
