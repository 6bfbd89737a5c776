// Copies of the whole save, to go back to: the last three New Years, and one from before each step that puts another
// life in the place of this one.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/game_state.h"
#include "core/store.h"

namespace backbeat {

enum class SnapshotKind { newYear, restart, import, restore };

/// A kept copy as its name tells it.
struct Snapshot {
  std::string name;  ///< in the store; names sort from the oldest copy to the newest
  SnapshotKind kind;
  std::string title;  ///< "New Year 2026", "Before the restart"
  std::string about;  ///< artist, date and cash at that time
};

/// What `name` tells; nothing when it is no name that `keepSnapshot` gave.
std::optional<Snapshot> readSnapshotName(std::string_view name);

/// The kept copies, newest first.
std::vector<Snapshot> snapshotsOf(Store& store);

/// Keeps a copy of what is stored, which is `state`, and lets the oldest of its kind go beyond three New Years and one
/// of every other kind, but not the one named `spared`. False when it could not be kept; then none goes.
bool keepSnapshot(Store& store, SnapshotKind kind, const GameState& state, std::string_view spared = {});

}  // namespace backbeat
