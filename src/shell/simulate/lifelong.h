// A whole life, and those of the heirs after it: works as keen does, loves, raises children, founds a label, and puts
// what is left into homes, vehicles and startups.
#pragma once

#include "shell/simulate/keen.h"

namespace backbeat {

class Lifelong final : public Strategy {
 public:
  void playWeek(Player& player, int64_t week) override;

 private:
  KeenFamily work_;
};

}  // namespace backbeat
