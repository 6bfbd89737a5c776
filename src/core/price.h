// What something costs, as a screen shows it and as a rule takes it.
#pragma once

#include <cstdint>
#include <optional>

namespace backbeat {

struct Charge {
  int64_t energy = 0;
  double dollars = 0;
  friend bool operator==(const Charge&, const Charge&) = default;
};

/// What a press costs. Every operation has one price, a constant or a function of the state, and both the screen that
/// shows it and the rule that takes it ask there. A button that is too dear looks so, and still answers a press with
/// the rule's own refusal.
struct Price {
  int64_t energy = 0;
  double dollars = 0;
  std::optional<Charge> charge = {};  ///< what is taken where the words say something else; meant, and rare

  constexpr Charge charged() const { return charge ? *charge : Charge{energy, dollars}; }
  friend bool operator==(const Price&, const Price&) = default;
};

}  // namespace backbeat
