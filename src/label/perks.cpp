#include "label/perks.h"

#include "label/departments.h"

namespace backbeat {

void toggleOfficePerk(Game& game, const OfficePerk& perk) {
  GameState& state = game.state;
  const bool switchedOn = state.*perk.on == 0;
  state.*perk.on = switchedOn ? 1 : 0;
  state.*perk.boost += switchedOn ? perk.amount : -perk.amount;
  state.labelOfficePerkSpend += switchedOn ? perk.cost : -perk.cost;
  game.save(perk.on, perk.boost, &GameState::labelOfficePerkSpend);
  labelChanged(game);
}

}  // namespace backbeat
