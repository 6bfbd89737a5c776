// Arithmetic that is the same everywhere. Overflow of an integer and a double that fits no 64-bit integer end the
// program with a message: an amount past that is a fault nobody may carry on from.
#pragma once

#include <cstdint>
#include <string_view>

namespace backbeat {

/// Ends the program and says why. The save keeps its last whole step.
[[noreturn]] void fatal(std::string_view message);

/// Cuts towards zero. Fatal when the result fits no 64-bit integer (also for NaN).
int64_t truncate(double value);

/// The nearest whole number, halves away from zero. Fatal when it fits no 64-bit integer.
int64_t roundHalfAway(double value);

/// `value` to `places` decimals (0 to 9), halves away from zero. Huge values come back as they are.
double roundTo(double value, int places);

/// `base` to the power `exponent`, for bases above 0, made of additions and multiplications only, so that every build
/// gives the same bits (the C libraries do not agree on their last one).
double power(double base, double exponent);

/// Sum and product; fatal on overflow.
int64_t add(int64_t a, int64_t b);
int64_t multiply(int64_t a, int64_t b);

}  // namespace backbeat
