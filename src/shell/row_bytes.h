// Rows as bytes: how they cross to the page, and how a kept copy is packed. docs/page-protocol.md tells the form.
#pragma once

#include <optional>
#include <string_view>

#include "core/store.h"

namespace backbeat {

/// Appends one write, a row or a removal.
void appendRow(Bytes& out, const Write& write);

/// Takes the next write off the head of `rows`. Nothing when what is left is no row; `rows` is spoilt then.
std::optional<Write> takeRow(std::string_view& rows);

}  // namespace backbeat
