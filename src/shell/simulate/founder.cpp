#include "shell/simulate/founder.h"

#include "shell/simulate/habits.h"
#include "shell/simulate/label_habits.h"

namespace backbeat {

namespace {

constexpr LabelHabit habit;
constexpr int64_t weeksOfALifestyle = 13;
constexpr double shareForAWeekOfLife = 0.001;

}  // namespace

void Founder::playWeek(Player& player, int64_t week) {
  foundLabel(player, habit.cashKept);
  runLabel(player, habit);
  const GameState& state = player.state();
  if (state.isLabelLaunched >= 1 && week % weeksOfALifestyle == 0) {  // the head of a label lives on energy
    chooseLifestyles(player, state.totalCashAvailable * shareForAWeekOfLife);
  }
  artist_.playWeek(player, week);
}

}  // namespace backbeat
