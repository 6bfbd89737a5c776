#include "play/golden_careers.h"

namespace backbeat {

std::span<const GoldenCareer> goldenCareers() {
  static constexpr GoldenCareer all[] = {{"golden_year", playGoldenYear}, {"golden_decade", playGoldenDecade}};
  return all;
}

std::string goldenTraceFile(const std::string& name) { return BACKBEAT_SOURCE_DIR "/tests/play/" + name + ".trace"; }
std::string goldenHashFile() { return BACKBEAT_SOURCE_DIR "/tests/play/golden_hashes.txt"; }

}  // namespace backbeat
