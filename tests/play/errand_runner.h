// Runs errands to their ends.
#pragma once

#include <string>
#include <vector>

#include "play/coverage.h"
#include "play/errands.h"

namespace backbeat {

struct ErrandsRun {
  Coverage coverage;
  std::vector<std::string> faults;  ///< errand, world, and the wish at which it stuck or what broke
};

/// Each errand once in each of its worlds, always with the same chance. Runs when first asked for.
const ErrandsRun& errandsRun();

}  // namespace backbeat
