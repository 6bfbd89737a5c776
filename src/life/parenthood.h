// How a child comes into the family: by birth or by adoption.
#pragma once

#include "core/game.h"
#include "core/outcome.h"
#include "core/price.h"

namespace backbeat {

inline constexpr Price adoptionCost = {.dollars = 50'000};

/// A child of the artist and the partner is born: from now on it takes energy and money every week.
void becomeParentByBirth(Game& game, const Matches& partner);

/// Draws a child of 1 to 5 years who waits for a family. Nothing of the career changes.
Child drawAdoption(Game& game);

/// Asks for that child. Refused without the cash; else the answer is a matter of luck, five times in eleven yes, and
/// costs only then.
Outcome adopt(Game& game, const Child& child);

}  // namespace backbeat
