// Names and titles that differ only in case are the same name. Folding is simple and one to one, in every script and
// for every language alike: "ß" stays "ß", and the Turkish dotted "İ" stays itself.
#pragma once

#include <string>
#include <string_view>

namespace backbeat {

/// The text with every letter in its folded form; broken UTF-8 becomes U+FFFD. For comparing, not for showing.
std::string foldCase(std::string_view utf8);

/// The text in capitals, letter for letter, for showing: "ß", which has no capital of one letter, stays.
std::string upperCase(std::string_view utf8);

}  // namespace backbeat
