// What the random player types, and the ways that it takes on purpose.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace backbeat {

extern const std::array<std::string, 6> sensibleTexts;
extern const std::array<std::string, 18> absurdTexts;
extern const std::array<std::string, 2> photos;

/// One press of an errand: a tab, the part of an action before its colon, or a label; and what goes with it, when it
/// matters.
struct Wish {
  std::string_view what;
  std::string value = {};
};

/// Ways that chance seldom takes to their end: what to press one after the other.
extern const std::vector<std::vector<Wish>> errands;

}  // namespace backbeat
