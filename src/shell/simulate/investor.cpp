#include "shell/simulate/investor.h"

namespace backbeat {

namespace {

constexpr double shareForARound = 0.2;

}  // namespace

void Investor::playWeek(Player& player, int64_t week) {
  player.backStartups(shareForARound);
  keen_.playWeek(player, week);
}

}  // namespace backbeat
