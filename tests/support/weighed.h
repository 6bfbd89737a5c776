// What work costs: done in a process of its own, so that nothing that was there before counts.
#pragma once

#include <functional>

namespace backbeat {

struct Weight {
  bool ended = false;    ///< by itself, and `work` answered true
  double seconds = 0;    ///< of the processor
  double megabytes = 0;  ///< the most at one time, beyond what the test had
};

/// Does `work` in a child of this process.
Weight weighed(const std::function<bool()>& work);

/// Whether this program watches its own memory, which makes everything slower and larger.
bool isSanitized();

}  // namespace backbeat
