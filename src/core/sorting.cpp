#include "core/sorting.h"

#include <algorithm>
#include <numeric>

namespace backbeat {

std::vector<uint32_t> sortedPositions(size_t count, BeforeAt before, const void* context) {
  std::vector<uint32_t> positions(count);
  std::iota(positions.begin(), positions.end(), 0U);
  std::sort(positions.begin(), positions.end(), [&](uint32_t a, uint32_t b) {
    if (before(context, a, b)) return true;
    return !before(context, b, a) && a < b;
  });
  return positions;
}

}  // namespace backbeat
