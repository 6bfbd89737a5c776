// The artist's children.
#pragma once

#include "core/game.h"

namespace backbeat {

/// A child of the artist and the partner is born: from now on it takes energy and money every week.
void becomeParentByBirth(Game& game, const Matches& partner);

}  // namespace backbeat
