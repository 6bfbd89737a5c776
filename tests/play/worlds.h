// Named careers to begin from, built in code.
#pragma once

#include <span>

#include "core/game.h"
#include "core/store.h"

namespace backbeat {

struct NamedWorld {
  const char* name;
  void (*furnish)(GameState& state);
  bool large = false;                   ///< long lists: what looks at all of them is asked less often
  void (*afterwards)(Game&) = nullptr;  ///< what else happened, once the furnished career was saved
};

/// One line each in the table: a life that newer rules make possible is one line more.
std::span<const NamedWorld> namedWorlds();

/// Saves the world into an empty store, as the game that played so far would have.
void settleInto(Store& store, const NamedWorld& world);

/// The songs of every world but the new one: released ones from this id on, three apart, as the game numbers them.
inline constexpr int64_t firstWorldSong = 12;

}  // namespace backbeat
