#include "support/world.h"

#include <gmock/gmock.h>

#include "shell/registry.h"

namespace backbeat {

World::World() { game.rooms = rooms(); }

World::~World() {
  if (settled_) expectSaved();
}

void World::settle() {
  settled_ = true;
  forEachField<GameState>([&](const auto& field) { game.save(field.member); });
  for (const Scalar& scalar : scalars) game.saveFile.writeScalar(state, scalar);
  game.saveFile.commit();
}

void World::expectSaved() {
  game.saveFile.commit();
  EXPECT_THAT(differencesFromStore(state, store), ::testing::IsEmpty()) << "not saved";
}

}  // namespace backbeat
