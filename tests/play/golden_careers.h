// Careers whose end is known: fixed presses, kept as traces, and the fingerprint of where each ends in
// golden_hashes.txt. Every build has to get there.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "shell/trace.h"

namespace backbeat {

struct GoldenCareer {
  const char* name;  ///< of its trace file, and in golden_hashes.txt
  /// The lines of the trace, as played by the screens of today. `problems` gets the steps that could not be made.
  std::vector<std::string> (*play)(std::vector<std::string>& problems);
};

/// One artist's first 52 weeks: songs, boosts, announcements, a job, traits, chirps.
std::vector<std::string> playGoldenYear(std::vector<std::string>& problems);
/// Ten years of a keen artist: songs, albums, traits, the week's chances, and a contract with a label.
std::vector<std::string> playGoldenDecade(std::vector<std::string>& problems);

std::span<const GoldenCareer> goldenCareers();

/// What somebody types into the console to make the presses of a trace with one launch.
std::string typedFor(const Trace& trace);

std::string goldenTraceFile(const std::string& name);
std::string goldenHashFile();

}  // namespace backbeat
