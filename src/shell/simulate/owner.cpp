#include "shell/simulate/owner.h"

#include "shell/simulate/wealth_habits.h"

namespace backbeat {

void Owner::playWeek(Player& player, int64_t week) {
  placeCash(player, {}, week);
  keen_.playWeek(player, week);
}

}  // namespace backbeat
