// Keen, and hears every pitch: a part of the cash goes into startups, which are kept until they are bought, listed or
// bankrupt.
#pragma once

#include "shell/simulate/keen.h"

namespace backbeat {

class Investor final : public Strategy {
 public:
  void playWeek(Player& player, int64_t week) override;

 private:
  Keen keen_;
};

}  // namespace backbeat
