#include "career/energy.h"

#include <algorithm>

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
  const int64_t endedJob = state.weeklyJobContractRemaining < 1 ? state.weeklyEnergyCost : 0;
  return refilled(state, standingEnergyCosts(state) - endedJob);
}

}  // namespace backbeat
