// Texts in a terminal: columns instead of characters, and nothing in them that could steer it.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace backbeat {

/// The columns that a text takes: two for East Asian wide characters and emoji, none for what joins the character
/// before it. An estimate; terminals differ.
size_t columnsOf(std::string_view text);

/// The text on one line and within `columns`, with "…" where it was cut. Line breaks and control characters become
/// spaces, and the marks that turn the direction of writing go: a title never moves the cursor.
std::string oneLine(std::string_view text, size_t columns);

/// The text in lines of at most `columns`, broken between words, or inside one that is longer than a line. Its own line
/// breaks stay.
std::vector<std::string> wrapped(std::string_view text, size_t columns);

/// The text with spaces behind it, or before it, up to `columns`.
std::string padded(std::string text, size_t columns);
std::string paddedBefore(std::string text, size_t columns);

/// A bar of `columns` blocks, filled by `share` (0 to 1; what lies outside counts as the nearest).
std::string bar(double share, size_t columns);

/// One block a point, as high as the point between the least (or 0) and the greatest; more than `columns` points are
/// told by the mean of their neighbours.
std::string spark(const std::vector<double>& points, size_t columns);

}  // namespace backbeat
