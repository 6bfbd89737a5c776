// What a store keeps beside each row, to know at the next load whether the row is still the one that was written.
#pragma once

#include <cstdint>
#include <string_view>

namespace backbeat {

/// A fingerprint over the key, the place and the value of a row; `kind` tells values of different kinds apart whose
/// bytes are the same. Saves hold it: it is the same on every platform and never changes.
uint64_t rowCheck(std::string_view key, int32_t chunk, char kind, std::string_view value);

}  // namespace backbeat
