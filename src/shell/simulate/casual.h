// Plays on the side: a job, a song now and then, a little practice.
#pragma once

#include "shell/simulate/strategy.h"

namespace backbeat {

class Casual final : public Strategy {
 public:
  void playWeek(Player& player, int64_t week) override;
};

}  // namespace backbeat
