#include "core/purse.h"

namespace backbeat {

bool affordable(const GameState& state, const Price& price) {
  const Charge charge = price.charged();
  return (charge.energy <= 0 || hasEnergy(state, price)) && (charge.dollars <= 0 || hasCash(state, price));
}

bool hasEnergy(const GameState& state, const Price& price) {
  return price.charged().energy <= state.totalEnergyAvailable;
}

bool hasCash(const GameState& state, const Price& price) { return price.charged().dollars <= state.totalCashAvailable; }

void pay(Game& game, const Price& price) {
  const Charge charge = price.charged();
  earn(game, {-charge.energy, -charge.dollars});
}

void earn(Game& game, const Charge& gain) {
  if (gain.energy != 0) {
    game.state.totalEnergyAvailable += gain.energy;
    game.save(&GameState::totalEnergyAvailable);
  }
  if (gain.dollars != 0) {
    game.state.totalCashAvailable += gain.dollars;
    game.save(&GameState::totalCashAvailable);
  }
}

}  // namespace backbeat
