// A whole life, and those of the heirs after it: works as keen does, loves, raises children, founds a label, and puts
// what is left into homes, vehicles and startups.
#pragma once

#include "shell/simulate/keen.h"

namespace backbeat {

class Lifelong final : public Strategy {
 public:
  void playWeek(Player& player, int64_t week) override;

 private:
  Keen work_;
  int64_t firstWeek_ = 1;  ///< of the generation that plays
};

}  // namespace backbeat
