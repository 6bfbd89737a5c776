// Chance, handed in. Rules ask for a range, never for a distribution of the standard library (those differ between
// platforms). Draws happen in the order in which the rule tells them.
#pragma once

#include <cstdint>
#include <iterator>
#include <string_view>
#include <utility>

namespace backbeat {

class Random {
 public:
  virtual ~Random() = default;

  /// Any 64 bits.
  virtual uint64_t bits64() = 0;

  /// A whole number from lo to hi, both included, each equally likely. lo must not exceed hi.
  virtual int64_t integer(int64_t lo, int64_t hi);

  /// A double from lo to hi, both included: u from 0 to 2^53 is drawn; u = 2^53 gives hi exactly.
  virtual double uniformDouble(double lo, double hi);

  /// 0 or 1.
  int64_t coin() { return integer(0, 1); }

  /// An element of a container that is not empty.
  template <class List>
  const auto& element(const List& list) {
    return list[static_cast<size_t>(integer(0, static_cast<int64_t>(std::size(list)) - 1))];
  }

  /// Fisher-Yates, from the last element down.
  template <class List>
  void shuffle(List& list) {
    for (size_t i = std::size(list); i > 1; --i) {
      using std::swap;
      swap(list[i - 1], list[static_cast<size_t>(integer(0, static_cast<int64_t>(i) - 1))]);
    }
  }
};

/// The game's own generator (xoshiro256**): small, fast, equal on every platform.
class SeededRandom final : public Random {
 public:
  explicit SeededRandom(uint64_t seed);
  uint64_t bits64() override;

 private:
  uint64_t state_[4];
};

/// A fixed hash of a text (FNV-1a, mixed), for cosmetic choice: the same text always gives the same picture or words.
uint64_t hashOf(std::string_view text, uint64_t salt = 0);

}  // namespace backbeat
