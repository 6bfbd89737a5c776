// What is left of the game in a terminal when it stops as it starts on a save.
#pragma once

#include <functional>
#include <iosfwd>
#include <string>

#include "core/fields.h"
#include "core/store.h"

namespace backbeat {

/// Why the career in `store` cannot be launched, as one sentence, or "". Tried in a process of its own; nothing
/// changes.
std::string launchProblem(Store& store, Date now);

/// Tells the player, and offers the career as a file, the kept copies and one more try, until the career can be
/// launched or the player leaves. True when it can be launched. Runs no rule of the game.
bool rescue(CareerStore& store, std::string problem, std::istream& in, std::ostream& out,
            const std::function<Date()>& now);

}  // namespace backbeat
