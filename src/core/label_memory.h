// What a launch remembers of the label: sums, so that neither a week nor a screen has to look at all its history, and
// what was taken off albums.
#pragma once

#include <cstdint>
#include <map>

#include "core/week_rows.h"

namespace backbeat {

/// Dollars of the weekly rows of a list.
struct EarnedSums {
  std::map<int64_t, double> ofWork;    ///< by song or album
  std::map<int64_t, double> ofArtist;  ///< by artist
  double total = 0;
};

struct LabelMemory {
  RunningTally<EarnedSums> streams;
  RunningTally<EarnedSums> sales;
  std::map<int64_t, int64_t> songsTakenOff;  ///< how many, by album
};

}  // namespace backbeat
