#include "shell/simulate/lifelong.h"

#include "career/energy.h"
#include "life/takeover.h"
#include "shell/simulate/family_habits.h"
#include "shell/simulate/habits.h"
#include "shell/simulate/label_habits.h"
#include "shell/simulate/wealth_habits.h"

namespace backbeat {

namespace {

constexpr FamilyPlan family = {.swipes = 6, .dates = 2, .children = 2, .energyKept = 30};
constexpr LabelHabit label;
constexpr WealthHabit wealth = {.shareForAHome = 0.2, .shareForAVehicle = 0.05};
constexpr double shareForARound = 0.1;
constexpr size_t generations = 3;  ///< the last one stays
constexpr int64_t ageOfHeir = 22;
constexpr int64_t weeksOfALifestyle = 13;
constexpr double shareForAWeekOfLife = 0.003;

/// Whether the weeks leave too little energy for handing over, even off the road.
bool isWornOut(const GameState& state) {
  const int64_t costs = standingEnergyCosts(state) - state.onTourEnergyCost;
  return state.totalEnergyMax - costs < takeoverEnergy;
}

}  // namespace

void Lifelong::playWeek(Player& player, int64_t week) {
  const GameState& state = player.state();
  player.backStartups(shareForARound);
  player.attendAwards();
  const bool isLast = state.saveAllLegacyList.size() + 1 >= generations;
  if (!isLast && retire(player, ageOfHeir)) work_.beginAnew(week);
  liveWithFamily(player, family, week);
  if (!isLast && heirWaits(state, ageOfHeir) && isWornOut(state)) {
    endLabel(player);  // it ends with this life anyway
  } else {
    foundLabel(player, label.cashKept);
    runLabel(player, label);
  }
  if (week % weeksOfALifestyle == 0) chooseLifestyles(player, state.totalCashAvailable * shareForAWeekOfLife);
  placeCash(player, wealth, week);
  work_.playWeek(player, week);
}

}  // namespace backbeat
