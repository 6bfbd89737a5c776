#include "life/children_events.h"

namespace backbeat {

Outcome runChildrenAnnualEvents(Game& /*game*/) {
  // No child can come yet, so the family is the artist alone.
  return {};
}

}  // namespace backbeat
