// What is done with texts that people type: UTF-8 throughout, lengths and cuts counted in code points.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace backbeat {

/// What stands for bytes that are no UTF-8.
inline constexpr char32_t replacementCharacter = 0xFFFD;

/// The code point that begins at `position`, which must lie before the end; moves `position` behind it. Bytes that are
/// no UTF-8 (broken sequences, overlong forms, surrogates) come back as the replacement character, one for each
/// longest piece that could have begun a character.
char32_t nextCodePoint(std::string_view utf8, size_t& position);

/// Appends one code point as UTF-8. Surrogates and values past U+10FFFF become the replacement character.
void appendCodePoint(std::string& utf8, char32_t codePoint);

/// The text with every broken piece replaced, so that it can be stored and shown anywhere.
std::string validUtf8(std::string_view text);

/// The text without white space and line breaks at both ends, those of all scripts (no-break and ideographic spaces
/// too).
std::string trimmed(std::string_view utf8);

/// The first `count` code points, or the whole text when it has fewer; an emoji made of several counts as several.
std::string firstCharacters(std::string_view utf8, size_t count);

}  // namespace backbeat
