// Works as keen does, and raises an heir who goes on when old enough.
#pragma once

#include "shell/simulate/keen.h"

namespace backbeat {

class Dynast final : public Strategy {
 public:
  void playWeek(Player& player, int64_t week) override;

 private:
  KeenFamily work_;
};

}  // namespace backbeat
