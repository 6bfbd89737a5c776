// The game is full of "up to this, that much" tables; this is their one shape and their one look-up.
#pragma once

#include <span>

namespace backbeat {

/// Holds for values up to and including `upTo`.
template <class Limit, class Value>
struct Band {
  Limit upTo;
  Value value;
};

/// The value of the first band that reaches `x`; past all bands, `beyond`.
template <class Limit, class Value, size_t Count>
constexpr Value bandFor(const Band<Limit, Value> (&bands)[Count], Limit x, Value beyond) {
  for (const Band<Limit, Value>& band : bands) {
    if (x <= band.upTo) return band.value;
  }
  return beyond;
}

}  // namespace backbeat
