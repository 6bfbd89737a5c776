// Measures steps many times over. Kept is the time that a quarter of the runs stay below: what else a busy machine does
// shows in the slow half of them.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace backbeat {

using Step = std::function<void()>;

/// Adds a step to those that `runAll` measures. `before` and `after` run outside the measured time.
void measure(const std::string& name, int repetitions, Step before, Step step, Step after);
void measure(const std::string& name, int repetitions, Step step);

/// From now on counts processor time in place of wall time, for a machine that is busy with other things.
void countProcessorTime();

/// Milliseconds by name: the first quartile.
using Times = std::map<std::string, double>;

/// The value that a quarter of `values` lie below.
double firstQuartile(const std::vector<double>& values);

/// Measures every step added since the last time, and tells of each on the error output.
void runAll(Times& times);

}  // namespace backbeat
