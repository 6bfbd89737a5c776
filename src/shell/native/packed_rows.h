// A kept copy of a save on a computer: all its rows in one compressed value.
#pragma once

#include <optional>
#include <span>
#include <vector>

#include "core/store.h"

namespace backbeat {

/// The rows in about a fifth of their room. "" when there is no memory for it.
Bytes packRows(std::span<const Write> rows);

/// The rows again; nothing when a single byte is not what `packRows` wrote.
std::optional<std::vector<Write>> unpackRows(std::string_view packed);

}  // namespace backbeat
