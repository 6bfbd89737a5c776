#include "core/text.h"

namespace backbeat {

namespace {

/// How a lead byte goes on: how many bytes follow, its own bits, and what the first of those bytes may be. The bounds
/// keep out overlong forms, surrogates and values past U+10FFFF.
struct Lead {
  int following;
  char32_t bits;
  unsigned char low;
  unsigned char high;
};

Lead leadOf(unsigned char byte) {
  if (byte >= 0xC2 && byte <= 0xDF) return {1, byte & 0x1FU, 0x80, 0xBF};
  if (byte == 0xE0) return {2, 0x0, 0xA0, 0xBF};
  if (byte == 0xED) return {2, 0xD, 0x80, 0x9F};
  if (byte >= 0xE1 && byte <= 0xEF) return {2, byte & 0x0FU, 0x80, 0xBF};
  if (byte == 0xF0) return {3, 0x0, 0x90, 0xBF};
  if (byte == 0xF4) return {3, 0x4, 0x80, 0x8F};
  if (byte >= 0xF1 && byte <= 0xF3) return {3, byte & 0x07U, 0x80, 0xBF};
  return {0, replacementCharacter, 0, 0};
}

bool isWhiteSpace(char32_t c) {
  return (c >= 0x09 && c <= 0x0D) || c == 0x20 || c == 0x85 || c == 0xA0 || c == 0x1680 ||
         (c >= 0x2000 && c <= 0x200A) || c == 0x2028 || c == 0x2029 || c == 0x202F || c == 0x205F || c == 0x3000;
}

}  // namespace

char32_t nextCodePoint(std::string_view utf8, size_t& position) {
  const auto first = static_cast<unsigned char>(utf8[position++]);
  if (first < 0x80) return first;
  const Lead lead = leadOf(first);
  char32_t codePoint = lead.bits;
  for (int i = 0; i < lead.following; ++i) {
    if (position == utf8.size()) return replacementCharacter;
    const auto byte = static_cast<unsigned char>(utf8[position]);
    if (byte < (i == 0 ? lead.low : 0x80) || byte > (i == 0 ? lead.high : 0xBF)) return replacementCharacter;
    codePoint = codePoint << 6 | (byte & 0x3FU);
    ++position;
  }
  return codePoint;
}

void appendCodePoint(std::string& utf8, char32_t codePoint) {
  const bool surrogate = codePoint >= 0xD800 && codePoint <= 0xDFFF;
  if (surrogate || codePoint > 0x10FFFF) codePoint = replacementCharacter;
  const auto append = [&](char32_t byte) { utf8 += static_cast<char>(byte); };
  if (codePoint < 0x80) return append(codePoint);
  if (codePoint < 0x800) {
    append(0xC0 | codePoint >> 6);
  } else if (codePoint < 0x10000) {
    append(0xE0 | codePoint >> 12);
    append(0x80 | (codePoint >> 6 & 0x3F));
  } else {
    append(0xF0 | codePoint >> 18);
    append(0x80 | (codePoint >> 12 & 0x3F));
    append(0x80 | (codePoint >> 6 & 0x3F));
  }
  append(0x80 | (codePoint & 0x3F));
}

std::string validUtf8(std::string_view text) {
  std::string valid;
  valid.reserve(text.size());
  for (size_t position = 0; position < text.size();) appendCodePoint(valid, nextCodePoint(text, position));
  return valid;
}

std::string trimmed(std::string_view utf8) {
  size_t begin = utf8.size();
  size_t end = 0;
  for (size_t position = 0; position < utf8.size();) {
    const size_t start = position;
    if (isWhiteSpace(nextCodePoint(utf8, position))) continue;
    if (begin == utf8.size()) begin = start;
    end = position;
  }
  return begin < end ? std::string(utf8.substr(begin, end - begin)) : std::string();
}

std::string firstCharacters(std::string_view utf8, size_t count) {
  size_t position = 0;
  while (count-- > 0 && position < utf8.size()) nextCodePoint(utf8, position);
  return std::string(utf8.substr(0, position));
}

}  // namespace backbeat
