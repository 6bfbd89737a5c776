#include "shell/simulate/dynast.h"

#include "shell/simulate/family_habits.h"

namespace backbeat {

namespace {

constexpr FamilyPlan family = {.swipes = 6, .dates = 2, .children = 1, .energyKept = 30};
constexpr int64_t charming = 15;  ///< before that nearly nobody likes back
constexpr int64_t ageOfHeir = 20;
constexpr int64_t weeksBetweenLessons = 3;

}  // namespace

void Dynast::playWeek(Player& player, int64_t week) {
  if (retire(player, ageOfHeir)) firstWeek_ = week;
  if (player.state().charisma >= charming) lookForLove(player, family);
  lookAfterPartner(player, family);
  if (week % weeksBetweenLessons == 0) raiseChildren(player);
  work_.playWeek(player, week - firstWeek_ + 1);
}

}  // namespace backbeat
