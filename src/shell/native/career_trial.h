// A career that is tried in a process of its own before anything relies on it: what stops there stops nothing else.
#pragma once

#include <span>
#include <string>

#include "core/fields.h"
#include "core/store.h"

namespace backbeat {

/// How far a trial goes.
enum class Trial { launch, oneWeek };

/// Launches the career in `rows` on a store of its own and ends a week of it, as a player would. Why it cannot be
/// played, as one sentence, or "".
std::string trialProblem(std::span<const Write> rows, Trial trial, Date now);

}  // namespace backbeat
