// What the random player types.
#pragma once

#include <array>
#include <string>

namespace backbeat {

extern const std::array<std::string, 6> sensibleTexts;
extern const std::array<std::string, 18> absurdTexts;
extern const std::array<std::string, 2> photos;

}  // namespace backbeat
