#include "core/short_money.h"

#include <cmath>

#include "core/money.h"

namespace backbeat {

std::string abbreviatedDollars(double dollars) {
  if (dollars < 0) return currency(dollars);
  return "$" + abbreviated(dollars < 1'000 ? std::floor(dollars) : dollars);
}

}  // namespace backbeat
