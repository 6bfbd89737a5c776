#include "core/row_check.h"

// The builds ask for it as a header alone: the browser's engine links no library.
#include <xxhash.h>

namespace backbeat {

uint64_t rowCheck(std::string_view key, int32_t chunk, char kind, std::string_view value) {
  const uint64_t place = uint64_t{static_cast<uint32_t>(chunk)} << 8 | static_cast<uint8_t>(kind);
  return XXH64(value.data(), value.size(), XXH64(key.data(), key.size(), place));
}

}  // namespace backbeat
