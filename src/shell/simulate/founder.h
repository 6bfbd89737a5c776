// Lives as the keen one until there is money and studio enough for a label, and runs it besides from then on.
#pragma once

#include "shell/simulate/keen.h"

namespace backbeat {

class Founder final : public Strategy {
 public:
  void playWeek(Player& player, int64_t week) override;

 private:
  Keen artist_;
};

}  // namespace backbeat
