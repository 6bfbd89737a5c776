#include "support/scripted_random.h"

#include <gtest/gtest.h>

namespace backbeat {

ScriptedRandom::~ScriptedRandom() { EXPECT_TRUE(script_.empty()) << script_.size() << " scripted draws were not made"; }

ScriptedRandom& ScriptedRandom::integerIs(int64_t lo, int64_t hi, int64_t result) {
  script_.push_back(Integer{lo, hi, result});
  return *this;
}

ScriptedRandom& ScriptedRandom::doubleIs(double lo, double hi, double result) {
  script_.push_back(Double{lo, hi, result});
  return *this;
}

ScriptedRandom& ScriptedRandom::bitsAre(uint64_t result) {
  script_.push_back(Bits{result});
  return *this;
}

uint64_t ScriptedRandom::bits64() {
  const Bits* next = script_.empty() ? nullptr : std::get_if<Bits>(&script_.front());
  if (!next) {
    ADD_FAILURE() << "bare bits were drawn";
    return 0;
  }
  const uint64_t result = next->result;
  script_.pop_front();
  return result;
}

int64_t ScriptedRandom::integer(int64_t lo, int64_t hi) {
  const Integer* next = script_.empty() ? nullptr : std::get_if<Integer>(&script_.front());
  if (!next || next->lo != lo || next->hi != hi) {
    ADD_FAILURE() << "unexpected draw of an integer from " << lo << " to " << hi;
    return lo;
  }
  const int64_t result = next->result;
  script_.pop_front();
  return result;
}

double ScriptedRandom::uniformDouble(double lo, double hi) {
  const Double* next = script_.empty() ? nullptr : std::get_if<Double>(&script_.front());
  if (!next || next->lo != lo || next->hi != hi) {
    ADD_FAILURE() << "unexpected draw of a double from " << lo << " to " << hi;
    return lo;
  }
  const double result = next->result;
  script_.pop_front();
  return result;
}

}  // namespace backbeat
