#include "play/worlds.h"

#include <algorithm>
#include <vector>

#include "support/dates.h"

namespace backbeat {

namespace {

std::vector<NamedWorld>& allWorlds() {
  static std::vector<NamedWorld> all;
  return all;
}

}  // namespace

RoomWorlds::RoomWorlds(std::initializer_list<NamedWorld> worlds) {
  std::vector<NamedWorld>& all = allWorlds();
  all.insert(all.end(), worlds.begin(), worlds.end());
  std::sort(all.begin(), all.end(), [](const NamedWorld& a, const NamedWorld& b) { return a.name < b.name; });
}

std::span<const NamedWorld> namedWorlds() { return allWorlds(); }

const NamedWorld& namedWorld(std::string_view name) {
  const std::vector<NamedWorld>& all = allWorlds();
  const auto found = std::find_if(all.begin(), all.end(), [&](const NamedWorld& world) { return world.name == name; });
  if (found == all.end()) std::abort();
  return *found;
}

void settleInto(Store& store, const NamedWorld& world) {
  SeededRandom random(1);
  SetClock clock;
  QuietPlatform platform;
  Game game(store, random, clock, platform);
  world.furnish(game.state);
  clock.set(dateOf(game.state));
  forEachField<GameState>([&](const auto& field) { game.save(field.member); });
  for (const Scalar& scalar : scalars) game.saveFile.writeScalar(game.state, scalar);
  game.saveFile.commit();
  if (world.afterwards) world.afterwards(game);
  game.saveFile.commit();
}

int64_t timeIn(Store& store) {
  GameState state;
  SaveFile(store).load(state);
  return noonOf(state);
}

}  // namespace backbeat
