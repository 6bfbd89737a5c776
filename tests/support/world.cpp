#include "support/world.h"

namespace backbeat {

void World::settle() {
  forEachField<GameState>([&](const auto& field) { game.save(field.member); });
  for (const Scalar& scalar : scalars) game.saveFile.writeScalar(state, scalar);
  game.saveFile.commit();
}

}  // namespace backbeat
