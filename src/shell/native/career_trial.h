// A career that is tried in a process of its own before anything relies on it: what stops there stops nothing else.
#pragma once

#include <functional>
#include <span>
#include <string>

#include "core/fields.h"
#include "core/store.h"

namespace backbeat {

/// How far a trial goes.
enum class Trial { launch, oneWeek };

/// Does `work` in a process of its own, which may take so many seconds of the processor. Why it did not come to a good
/// end, as one sentence about a career, or ""; an answer of false is a week that cannot be ended.
std::string problemOfWork(const std::function<bool()>& work, unsigned seconds);

/// Launches the career in `rows` on a store of its own and ends a week of it, as a player would. Why it cannot be
/// played, as one sentence, or "".
std::string trialProblem(std::span<const Write> rows, Trial trial, Date now);

}  // namespace backbeat
