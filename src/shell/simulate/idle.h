// Does nothing: what the world gives anybody.
#pragma once

#include "shell/simulate/strategy.h"

namespace backbeat {

class Idle final : public Strategy {
 public:
  void playWeek(Player& player, int64_t) override { player.endTheWeek(); }
};

}  // namespace backbeat
