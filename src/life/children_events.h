// What a year brings to the artist's children.
#pragma once

#include "core/game.h"
#include "core/outcome.h"

namespace backbeat {

/// Runs as the report closes. Without children there is no news.
Outcome runChildrenAnnualEvents(Game& game);

}  // namespace backbeat
