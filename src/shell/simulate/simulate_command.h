// `backbeat simulate`: a laboratory for the balance of the game.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace backbeat {

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
};

/// Takes an option that stands alone; false when there is no such one.
bool takeSimulateFlag(SimulateOptions& options, std::string_view flag);

/// Takes an option with its value: what is wrong with it, or ""; nothing when there is no such option.
std::optional<std::string> takeSimulateOption(SimulateOptions& options, std::string_view option,
                                              std::string_view value);

/// Plays the careers and tells of them: the table or JSON on the standard output, progress and problems on the error
/// output. Answers with the program's exit code: 1 when a file cannot be written, or a strategy got stuck.
int runSimulation(const SimulateOptions& options);

}  // namespace backbeat
