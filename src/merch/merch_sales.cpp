#include "merch/merch_sales.h"

namespace backbeat {

void sellWeeklyMerch(Game& /*game*/) {
  // No product can be launched yet, so nothing is on sale.
}

}  // namespace backbeat
