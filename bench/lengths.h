// What a career of one length costs.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "heavy_career.h"
#include "screens.h"
#include "times.h"

namespace backbeat {

/// A way to live, and how long.
struct Plan {
  const char* name;  ///< in front of the years in the names of its measurements
  LiveWeek live;
  int64_t years = 0;
  bool hasLabel = false;
  bool hasFamily = false;
  bool visitsEveryScreen = false;
  bool goesThroughTheDoor = true;  ///< is played by the page's engine as well
};

/// Everything that is measured of it. Times are milliseconds.
struct Length {
  Plan plan;
  std::string name;  ///< of its measurements: "/100"
  Times ms;
  size_t songs = 0;
  size_t streaming = 0;
  size_t records = 0;
  size_t signedRows = 0;
  std::string family;
  std::string weekWritten;
  double storeSize = 0;     ///< megabytes
  double prunedSize = 0;    ///< megabytes that it takes once old records are cleared up
  double exportedSize = 0;  ///< megabytes
  double peakMemory = 0;    ///< megabytes
  size_t screens = 0;       ///< of all the game, where every one was visited
  std::string slowestScreen;

  double of(const std::string& what) const;
  double slowest() const { return of(slowestScreen); }
};

/// The screens that a career of this plan has most to say on.
std::vector<const HeavyScreen*> screensOf(const Plan& plan);

Length measureLength(const std::filesystem::path& folder, const Plan& plan);

/// Loads a save, looks at every heavy screen, plays and exports: then prints the greatest memory so far, in kilobytes.
/// The exit code of a process of its own.
int tellPeakMemory(const std::string& path);

}  // namespace backbeat
