// Named careers to begin from, built in code. Each room has a `worlds.cpp` with its own.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <span>
#include <string_view>

#include "core/game.h"
#include "core/store.h"

namespace backbeat {

struct NamedWorld {
  std::string_view name;
  void (*furnish)(GameState& state);
  bool large = false;                   ///< long lists: what looks at all of them is asked less often
  void (*afterwards)(Game&) = nullptr;  ///< what else happened, once the furnished career was saved
};

/// A room's worlds, among those of all rooms from the start of the program on: one constant in its `worlds.cpp`.
struct RoomWorlds {
  RoomWorlds(std::initializer_list<NamedWorld> worlds);
};

/// Those of all rooms, by name.
std::span<const NamedWorld> namedWorlds();
const NamedWorld& namedWorld(std::string_view name);

/// Saves the world into an empty store, as the game that played so far would have.
void settleInto(Store& store, const NamedWorld& world);

/// The hour at which somebody plays on in what the store holds, so that posts and calendar agree; unix milliseconds.
int64_t timeIn(Store& store);

}  // namespace backbeat
