// Keen, and whatever is left becomes homes and vehicles, which are kept.
#pragma once

#include "shell/simulate/keen.h"

namespace backbeat {

class Owner final : public Strategy {
 public:
  void playWeek(Player& player, int64_t week) override;

 private:
  Keen keen_;
};

}  // namespace backbeat
