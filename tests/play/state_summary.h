// A whole career in lines that people can compare.
#pragma once

#include <string>

#include "core/game_state.h"

namespace backbeat {

/// Every scalar with its value, every list with its size and a hash of its records, one a line in the order of the
/// tables.
std::string summaryOf(const GameState& state);

/// The lines of two summaries that differ, "-" before what was expected and "+" before what is there; "" when none
/// does.
std::string differenceOf(const std::string& expected, const std::string& actual);

}  // namespace backbeat
