#include "shell/native/terminal_text.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "core/text.h"

namespace backbeat {

namespace {

struct Range {
  char32_t first, last;
};

constexpr Range wide[] = {{0x1100, 0x115F},   {0x2E80, 0x303E},   {0x3041, 0x33FF},   {0x3400, 0x4DBF},
                          {0x4E00, 0x9FFF},   {0xA000, 0xA4CF},   {0xAC00, 0xD7A3},   {0xF900, 0xFAFF},
                          {0xFE30, 0xFE6F},   {0xFF00, 0xFF60},   {0xFFE0, 0xFFE6},   {0x1F1E6, 0x1F1FF},
                          {0x1F300, 0x1F64F}, {0x1F680, 0x1F6FF}, {0x1F900, 0x1FAFF}, {0x20000, 0x3FFFD}};
constexpr Range joining[] = {
    {0x0300, 0x036F}, {0x200B, 0x200F}, {0x20D0, 0x20FF}, {0xFE00, 0xFE0F}, {0x1F3FB, 0x1F3FF}};
constexpr Range turning[] = {{0x200E, 0x200F}, {0x202A, 0x202E}, {0x2066, 0x2069}};

constexpr std::array<const char*, 8> heights = {"▁", "▂", "▃", "▄", "▅", "▆", "▇", "█"};

template <size_t count>
bool isIn(const Range (&ranges)[count], char32_t c) {
  return std::any_of(std::begin(ranges), std::end(ranges), [c](Range r) { return c >= r.first && c <= r.last; });
}

size_t columnsOf(char32_t c) { return isIn(joining, c) ? 0 : isIn(wide, c) ? 2 : 1; }

bool isControl(char32_t c) { return c < ' ' || (c >= 0x7F && c < 0xA0) || c == 0x2028 || c == 0x2029; }

/// The text without what could steer the terminal; line breaks stay when asked for.
std::string harmless(std::string_view text, bool keepBreaks) {
  std::string result;
  for (size_t at = 0; at < text.size();) {
    const char32_t c = nextCodePoint(text, at);
    if (isIn(turning, c)) continue;
    const bool steers = isControl(c) && !(keepBreaks && c == '\n');
    appendCodePoint(result, steers ? ' ' : c);
  }
  return result;
}

/// How many bytes of `text` fit into `columns`; at least one character.
size_t bytesWithin(std::string_view text, size_t columns) {
  size_t used = 0;
  for (size_t at = 0; at < text.size();) {
    const size_t begin = at;
    used += columnsOf(nextCodePoint(text, at));
    if (used > columns && begin > 0) return begin;
  }
  return text.size();
}

void wrapLine(std::string_view line, size_t columns, std::vector<std::string>& lines) {
  do {
    size_t end = bytesWithin(line, columns);
    if (end < line.size()) {
      const size_t space = line.rfind(' ', end);
      if (space != std::string_view::npos && space > 0) end = space;
    }
    lines.emplace_back(line.substr(0, end));
    line.remove_prefix(end);
    while (line.starts_with(' ')) line.remove_prefix(1);
  } while (!line.empty());
}

}  // namespace

size_t columnsOf(std::string_view text) {
  size_t columns = 0;
  for (size_t at = 0; at < text.size();) columns += columnsOf(nextCodePoint(text, at));
  return columns;
}

std::string oneLine(std::string_view text, size_t columns) {
  // A character takes at most four bytes, and joining marks are few in honest texts: no need to look at all of a long
  // one.
  std::string line = harmless(text.substr(0, columns * 16), false);
  if (line.size() <= columns || columnsOf(line) <= columns) return line;
  line.resize(bytesWithin(line, columns - 1));
  return line + "…";
}

std::vector<std::string> wrapped(std::string_view text, size_t columns) {
  const std::string clean = harmless(text, true);
  std::vector<std::string> lines;
  for (size_t begin = 0; begin <= clean.size();) {
    const size_t end = std::min(clean.find('\n', begin), clean.size());
    wrapLine(std::string_view(clean).substr(begin, end - begin), columns, lines);
    begin = end + 1;
  }
  return lines;
}

std::string padded(std::string text, size_t columns) {
  const size_t used = columnsOf(text);
  if (used < columns) text.append(columns - used, ' ');
  return text;
}

std::string paddedBefore(std::string text, size_t columns) {
  const size_t used = columnsOf(text);
  return used < columns ? std::string(columns - used, ' ') + text : text;
}

std::string bar(double share, size_t columns) {
  const double full = std::isnan(share) ? 0 : std::clamp(share, 0.0, 1.0) * static_cast<double>(columns);
  std::string result;
  for (size_t i = 0; i < columns; ++i) result += static_cast<double>(i) + 0.5 <= full ? "█" : "░";
  return result;
}

std::string spark(const std::vector<double>& points, size_t columns) {
  if (points.empty()) return {};
  const size_t count = std::min(points.size(), columns);
  std::vector<double> shown(count);
  for (size_t i = 0; i < count; ++i) {
    const size_t first = i * points.size() / count;
    const size_t last = std::max((i + 1) * points.size() / count, first + 1);
    for (size_t at = first; at < last; ++at) shown[i] += points[at] / static_cast<double>(last - first);
  }
  const double least = std::min(0.0, *std::min_element(shown.begin(), shown.end()));
  const double range = *std::max_element(shown.begin(), shown.end()) - least;
  std::string result;
  for (const double point : shown) {
    const double height = range > 0 ? (point - least) / range * 7 : 0;
    result += heights[height > 0 && height < 8 ? static_cast<size_t>(std::round(height)) : 0];
  }
  return result;
}

}  // namespace backbeat
