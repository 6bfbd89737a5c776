#include "music/title_pools.h"

#include "core/random.h"

namespace backbeat {

std::string suggestedTitle(uint64_t salt) {
  const uint64_t hash = hashOf("title", salt);
  const std::string_view first = firstTitleWords[hash % firstTitleWords.size()];
  const std::string_view second = secondTitleWords[hash / firstTitleWords.size() % secondTitleWords.size()];
  return std::string(first) + " " + std::string(second);
}

}  // namespace backbeat
