#include "music/title_pools.h"

#include "core/random.h"

namespace backbeat {

namespace {

/// Neither shares a divisor with the number of first words: all of them come before one comes again.
constexpr uint64_t throwsPerNumber = 11;
constexpr uint64_t stride = 23;

}  // namespace

std::string suggestedTitle(int64_t number, int64_t nth) {
  const uint64_t place = static_cast<uint64_t>(number) * throwsPerNumber + static_cast<uint64_t>(nth);
  const std::string_view first = firstTitleWords[place * stride % firstTitleWords.size()];
  size_t last = hashOf("title", place) % secondTitleWords.size();
  if (secondTitleWords[last] == first) last = (last + 1) % secondTitleWords.size();
  return std::string(first) + " " + std::string(secondTitleWords[last]);
}

}  // namespace backbeat
