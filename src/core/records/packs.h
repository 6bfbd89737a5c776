// Records of what came out of the shop: how each looks in memory, and the table that says how it is stored.
#pragma once

#include <cstdint>
#include <string>

#include "core/fields.h"

namespace backbeat {

/// When a free pack was last taken.
struct PackWeek {
  std::string product;
  int64_t weekNumberForTracking = 0;

  friend bool operator==(const PackWeek&, const PackWeek&) = default;
};

template <>
inline constexpr auto fieldsOf<PackWeek> = [](auto&& take) {
  return take(Field{"product", &PackWeek::product}, Field{"weekNumberForTracking", &PackWeek::weekNumberForTracking});
};

/// A purchase that has had its effect, under the shop's own name for it.
struct CreditedPurchase {
  std::string transaction;

  friend bool operator==(const CreditedPurchase&, const CreditedPurchase&) = default;
};

template <>
inline constexpr auto fieldsOf<CreditedPurchase> = [](auto&& take) {
  return take(Field{"transaction", &CreditedPurchase::transaction});
};

}  // namespace backbeat
