#include "shell/simulate/owner.h"

#include "shell/simulate/wealth_habits.h"

namespace backbeat {

namespace {

constexpr int64_t weeksBetweenLooks = 13;
constexpr double shareForAHome = 0.6;
constexpr double shareForAVehicle = 0.1;

}  // namespace

void Owner::playWeek(Player& player, int64_t week) {
  if (week % weeksBetweenLooks == 0) {
    buyHome(player, player.state().totalCashAvailable * shareForAHome);
    buyVehicle(player, player.state().totalCashAvailable * shareForAVehicle);
  }
  keen_.playWeek(player, week);
}

}  // namespace backbeat
