// The annual music awards.
#pragma once

#include "core/game.h"

namespace backbeat {

/// Last step of the report's opening: the entry to the award show in its two weeks of the year. Without a show there is
/// none.
void showAwardButton(Game& game);

}  // namespace backbeat
