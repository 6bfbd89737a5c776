// Works as hard as the keen one and spends as if it could not end: guests, great campaigns, a grand life.
#pragma once

#include "shell/simulate/strategy.h"

namespace backbeat {

class Mogul final : public Strategy {
 public:
  void playWeek(Player& player, int64_t week) override;
};

}  // namespace backbeat
