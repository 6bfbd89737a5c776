// Works at it every week: a song every other week, some of them on albums, and the rest of the energy for the skills.
#pragma once

#include "shell/simulate/strategy.h"

namespace backbeat {

class Keen final : public Strategy {
 public:
  void playWeek(Player& player, int64_t week) override;
};

}  // namespace backbeat
