#include "life/relationship_events.h"

namespace backbeat {

Outcome runRelationshipEvents(Game& /*game*/) {
  // Nobody can be met yet, so the artist is single.
  return {};
}

}  // namespace backbeat
