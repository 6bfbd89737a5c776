// What a week does to the artist's relationship.
#pragma once

#include "core/game.h"
#include "core/outcome.h"

namespace backbeat {

/// Last step of the report's appearance. A single artist has no news.
Outcome runRelationshipEvents(Game& game);

}  // namespace backbeat
