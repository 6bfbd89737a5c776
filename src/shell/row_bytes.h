// Rows as bytes: how they cross to the page, and how a kept copy is packed. docs/page-protocol.md tells the form.
#pragma once

#include <optional>
#include <string_view>

#include "core/store.h"

namespace backbeat {

/// Appends one write, a row or a removal. A row carries a check of itself.
void appendRow(Bytes& out, const Write& write);

/// Takes the next write off the head of `rows`; its value is a damaged one when the check says so. Nothing when what is
/// left is no row; `rows` is spoilt then.
std::optional<Write> takeRow(std::string_view& rows);

/// Whether the row at the head carries a check. Those that older versions wrote do not, and are taken as they are.
bool isChecked(std::string_view row);

}  // namespace backbeat
