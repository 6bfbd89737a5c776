#include "career/energy.h"

#include <algorithm>

#include "career/touring.h"

namespace backbeat {

namespace {

int64_t refilled(const GameState& state, int64_t costs) {
  return std::max(std::max(state.totalEnergyMax, state.totalEnergyAvailable) - costs, int64_t{0});
}

}  // namespace

int64_t standingEnergyCosts(const GameState& state) {
  return state.weeklyEnergyCost + state.onTourEnergyCost + state.openLabelEnergyCost + state.merchEnergyCost +
         state.childEnergyCost;
}

void applyWeeklyEnergy(Game& game) {
  GameState& state = game.state;
  state.totalEnergyAvailable = refilled(state, standingEnergyCosts(state));
  game.save(&GameState::totalEnergyAvailable);
}

int64_t nextWeeksEnergy(const GameState& state) {
  int64_t job = state.weeklyEnergyCost;
  int64_t costs = standingEnergyCosts(state) - job;
  if (tourEndsThisWeek(state)) {
    costs -= state.onTourEnergyCost;
    job -= state.onTourEnergyCost;  // the end of a tour takes its energy from the job's as well: intended
  }
  return refilled(state, state.weeklyJobContractRemaining < 1 ? costs : costs + job);
}

}  // namespace backbeat
