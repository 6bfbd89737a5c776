// What many careers of one strategy come to, for a terminal and as JSON.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "shell/simulate/simulation.h"

namespace backbeat {

/// The middle of some values, and the range that holds four fifths of them.
struct Spread {
  double low = 0;  ///< a tenth of the values lie below
  double median = 0;
  double high = 0;  ///< a tenth lie above
};

/// Between two values it is as far from one to the other as the share says. Of no values: zeros.
Spread spreadOf(std::vector<double> values);

/// A table of where the careers end, and plots of cash and listeners by year.
std::string summaryText(const SimulationPlan& plan, const Simulation& simulation);

/// The spread of every column in every year.
std::string summaryJson(const SimulationPlan& plan, const Simulation& simulation);

/// The heads of the table that a simulation writes, and the rows of one career: a line each, with its end.
std::string csvHead();
std::string csvRows(const SimulationPlan& plan, const Career& career);

}  // namespace backbeat
