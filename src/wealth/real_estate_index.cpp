#include "wealth/real_estate_index.h"

namespace backbeat {

void driftRealEstateIndex(Game& game) {
  double& index = game.state.realEstateIndex;
  index += game.random.uniformDouble(-0.01, 0.01);
  if (index <= 0.5) index = 0.51;
  if (index >= 1.5) index = 1.49;
  game.save(&GameState::realEstateIndex);
}

}  // namespace backbeat
