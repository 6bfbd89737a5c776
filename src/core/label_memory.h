// What a launch remembers of the label, so that neither a week nor a screen has to look at all its history. All of it
// follows from the lists and is found anew when they are not those that it was told from.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>

namespace backbeat {

/// Dollars of a list that grows week by week, summed as it grows.
struct RunningSums {
  std::map<int64_t, double> ofWork;    ///< by song or album
  std::map<int64_t, double> ofArtist;  ///< by artist
  double total = 0;
  size_t rows = 0;                   ///< summed so far
  std::array<int64_t, 3> last = {};  ///< work, week and year of the last of them
};

/// The works at the head of a list that have fallen silent for good.
struct SilentWorks {
  size_t count = 0;
  int64_t lastId = 0;  ///< of the last of them
};

struct LabelMemory {
  RunningSums streams;
  RunningSums sales;
  SilentWorks songs;
  SilentWorks albums;
  std::map<int64_t, int64_t> songsTakenOff;  ///< how many, by album
};

}  // namespace backbeat
