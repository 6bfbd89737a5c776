// `backbeat simulate`: a laboratory for the balance of the game.
#pragma once

#include <cstdint>
#include <string>

namespace backbeat {

inline constexpr int64_t mostCareers = 1'000'000;
inline constexpr int64_t mostYears = 1'000;
inline constexpr int64_t mostJobs = 1'024;

struct SimulateOptions {
  std::string strategy = "keen";
  uint64_t seed = 1;
  int64_t careers = 100;
  int64_t years = 10;
  int64_t jobs = 0;   ///< 0: as many as the machine has cores
  std::string csv;    ///< the file that the rows go to, "" for none
  std::string trace;  ///< the file that the trace of the first career goes to, "" for none
  bool json = false;
  bool profile = false;
  bool force = false;  ///< files that are there are replaced
};

/// Plays the careers and tells of them: the table or JSON on the standard output, progress and problems on the error
/// output. Answers with the program's exit code: 1 when a file cannot be written, or a strategy got stuck.
int runSimulation(const SimulateOptions& options);

}  // namespace backbeat
