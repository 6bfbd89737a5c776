// Records of the weekly report: how each looks in memory, and the table that says how it is stored.
#pragma once

#include <cstdint>
#include <string>

#include "core/fields.h"

namespace backbeat {

/// One number that the open report tells by and that stands nowhere else, such as the followers before the week. What
/// there is to remember may grow from version to version, so it is told by name: see turn/open_report.h.
struct ReportNumber {
  std::string what;
  int64_t of = 0;  ///< the id of a song, an album or a company; 0 for what is about the week
  double figure = 0;

  friend bool operator==(const ReportNumber&, const ReportNumber&) = default;
};

template <>
inline constexpr auto fieldsOf<ReportNumber> = [](auto&& take) {
  return take(Field{"what", &ReportNumber::what}, Field{"of", &ReportNumber::of},
              Field{"figure", &ReportNumber::figure});
};

}  // namespace backbeat
