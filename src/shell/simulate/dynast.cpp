#include "shell/simulate/dynast.h"

#include "shell/simulate/family_habits.h"
#include "shell/simulate/habits.h"

namespace backbeat {

namespace {

constexpr FamilyPlan family = {.swipes = 6, .dates = 2, .children = 1, .energyKept = 30};
constexpr int64_t ageOfHeir = 18;
constexpr int64_t weeksOfALifestyle = 13;
constexpr double shareForAWeekOfLife = 0.01;  ///< who does not live well has no energy left for handing over

}  // namespace

void Dynast::playWeek(Player& player, int64_t week) {
  if (retire(player, ageOfHeir)) work_.beginAnew(week);
  liveWithFamily(player, family, week);
  if (week % weeksOfALifestyle == 0) {
    chooseLifestyles(player, player.state().totalCashAvailable * shareForAWeekOfLife);
  }
  work_.playWeek(player, week);
}

}  // namespace backbeat
