#include "wealth/weekly_ventures.h"

namespace backbeat {

void updateVentureValuations(Game& /*game*/) {
  // No startup can be backed yet, so the portfolio is empty.
}

void resolveVentureExits(Game& /*game*/) {
  // No startup can be backed yet, so nothing can exit.
}

}  // namespace backbeat
