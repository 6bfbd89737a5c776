// How large sums read where there is little room.
#pragma once

#include <string>

namespace backbeat {

/// "$999", "$1.2K", "$12K", "$3.4M": all cut, never rounded up. Debts stand in full: "-$12,345".
std::string abbreviatedDollars(double dollars);

}  // namespace backbeat
