#include "shell/native/terminal_text.h"

#include <utf8proc.h>

#include <algorithm>
#include <array>
#include <cmath>

#include "core/text.h"

namespace backbeat {

namespace {

constexpr std::array<const char*, 8> heights = {"▁", "▂", "▃", "▄", "▅", "▆", "▇", "█"};

/// The marks that turn the direction of writing.
bool turns(char32_t c) {
  if (c == 0x200E || c == 0x200F) return true;
  const auto kind = utf8proc_get_property(static_cast<utf8proc_int32_t>(c))->bidi_class;
  constexpr std::array<int, 9> turning = {UTF8PROC_BIDI_CLASS_LRE, UTF8PROC_BIDI_CLASS_LRO, UTF8PROC_BIDI_CLASS_RLE,
                                          UTF8PROC_BIDI_CLASS_RLO, UTF8PROC_BIDI_CLASS_PDF, UTF8PROC_BIDI_CLASS_LRI,
                                          UTF8PROC_BIDI_CLASS_RLI, UTF8PROC_BIDI_CLASS_FSI, UTF8PROC_BIDI_CLASS_PDI};
  return std::find(turning.begin(), turning.end(), kind) != turning.end();
}

bool isControl(char32_t c) {
  const utf8proc_category_t kind = utf8proc_category(static_cast<utf8proc_int32_t>(c));
  return kind == UTF8PROC_CATEGORY_CC || kind == UTF8PROC_CATEGORY_ZL || kind == UTF8PROC_CATEGORY_ZP;
}

/// A character as a reader sees it, be it made of several: a letter with its accents, a family, a flag.
struct Character {
  size_t bytes = 0;
  size_t columns = 0;
};

Character characterAt(std::string_view text, size_t begin) {
  constexpr size_t widest = 2;
  size_t columns = 0;
  size_t at = begin;
  utf8proc_int32_t state = 0;
  utf8proc_int32_t before = 0;
  while (at < text.size()) {
    size_t next = at;
    const auto c = static_cast<utf8proc_int32_t>(nextCodePoint(text, next));
    if (at > begin && utf8proc_grapheme_break_stateful(before, c, &state)) break;
    columns += static_cast<size_t>(utf8proc_charwidth(c));
    before = c;
    at = next;
  }
  return {at - begin, std::min(columns, widest)};
}

/// The text without what could steer the terminal; line breaks stay when asked for.
std::string harmless(std::string_view text, bool keepBreaks) {
  std::string result;
  for (size_t at = 0; at < text.size();) {
    const char32_t c = nextCodePoint(text, at);
    if (turns(c)) continue;
    const bool steers = isControl(c) && !(keepBreaks && c == '\n');
    appendCodePoint(result, steers ? ' ' : c);
  }
  return result;
}

/// How many bytes of `text` fit into `columns`; at least one character.
size_t bytesWithin(std::string_view text, size_t columns) {
  size_t used = 0;
  for (size_t at = 0; at < text.size();) {
    const Character next = characterAt(text, at);
    used += next.columns;
    if (used > columns && at > 0) return at;
    at += next.bytes;
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
  for (size_t at = 0; at < text.size();) {
    const Character next = characterAt(text, at);
    columns += next.columns;
    at += next.bytes;
  }
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
