// How the time of many turns divides over their steps: the processor's time for this thread alone, so that whatever
// else the machine does counts for nothing.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace backbeat {

class TurnProfile {
 public:
  /// A step begins; "" when the turn is over.
  void enter(std::string_view step);
  void add(const TurnProfile& other);

  /// The table: microseconds a turn and share, step by step in the order of the turn.
  std::string text() const;

 private:
  struct Step {
    std::string name;
    int64_t took = 0;  ///< nanoseconds
  };

  int64_t& timeOf(std::string_view step);

  std::vector<Step> steps_;
  int64_t turns_ = 0;
  std::string running_;
  int64_t since_ = 0;
};

}  // namespace backbeat
