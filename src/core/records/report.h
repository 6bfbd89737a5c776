// Records of the weekly report: how each looks in memory, and the table that says how it is stored.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "core/fields.h"

namespace backbeat {

/// Numbers that the open report tells by and that stand nowhere else, such as the followers before the week. What there
/// is to remember may grow from version to version: see turn/open_report.h. (The key "openReport" once held the same in
/// another form; nothing may stand there again.)
struct ReportNumbers {
  std::string what;             ///< whose they are: "week before", "songs"
  int64_t each = 0;             ///< how many belong to each of those, one after the other
  std::vector<double> figures;  ///< those of the first, those of the second and so on

  friend bool operator==(const ReportNumbers&, const ReportNumbers&) = default;
};

template <>
inline constexpr auto fieldsOf<ReportNumbers> = [](auto&& take) {
  return take(Field{"what", &ReportNumbers::what}, Field{"each", &ReportNumbers::each},
              Field{"figures", &ReportNumbers::figures});
};

}  // namespace backbeat
