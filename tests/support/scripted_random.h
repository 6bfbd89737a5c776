// Chance by script: a test says which draws a rule makes, of which ranges, and what they give. A draw too many, too few
// or of another range fails the test.
#pragma once

#include <deque>
#include <variant>

#include "core/random.h"

namespace backbeat {

class ScriptedRandom final : public Random {
 public:
  ~ScriptedRandom() override;

  /// The next draw is a whole number from lo to hi, and gives `result`.
  ScriptedRandom& integerIs(int64_t lo, int64_t hi, int64_t result);
  /// The next draw is a double from lo to hi, and gives `result`.
  ScriptedRandom& doubleIs(double lo, double hi, double result);

  /// The next draw is of bare bits, and gives `result`.
  ScriptedRandom& bitsAre(uint64_t result);

  uint64_t bits64() override;
  int64_t integer(int64_t lo, int64_t hi) override;
  double uniformDouble(double lo, double hi) override;

 private:
  struct Integer {
    int64_t lo, hi, result;
  };
  struct Double {
    double lo, hi, result;
  };
  struct Bits {
    uint64_t result;
  };
  std::deque<std::variant<Integer, Double, Bits>> script_;
};

}  // namespace backbeat
