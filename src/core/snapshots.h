// Copies of the whole save, to go back to: of New Years, and from before each step that puts another life in the place
// of this one.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/game_state.h"
#include "core/store.h"

namespace backbeat {

enum class SnapshotKind { newYear, restart, takeover, import, restore };

/// All copies together may take this much; beyond it each new one costs an old one, after a question.
inline constexpr int64_t snapshotBudget = 100'000'000;

/// A kept copy as its name tells it.
struct Snapshot {
  std::string name;  ///< in the store; names sort from the oldest copy to the newest
  SnapshotKind kind;
  std::string title = {};          ///< "New Year 2026", "Before the restart"
  std::string about = {};          ///< artist, date and cash at that time
  std::string content = {};        ///< the career's fingerprint; "" for a copy of an older version
  std::optional<Date> taken = {};  ///< when; nothing for a copy of an older version
  std::string artist = {};         ///< whose career it is
  int64_t week = 0;                ///< how far that career is, in weeks since the year 0
  int64_t bytes = 0;               ///< the room that it takes; 0 while that is not known

  /// For a question: `"New Year 2026" (Nova · Week 1, 2026 · $0)`.
  std::string told() const;
  /// When it was taken and what it takes: "Kept 21 Nov 2026, 0.3 MB".
  std::string kept() const;
};

/// "1.2 MB", and never nothing.
std::string roomOf(int64_t bytes);

/// What `name` tells; nothing when it is no name that `keepSnapshot` gave.
std::optional<Snapshot> readSnapshotName(std::string_view name);

/// The kept copies, newest first.
std::vector<Snapshot> snapshotsOf(Store& store);

/// What one more copy does with those that are there.
struct SnapshotPlan {
  bool alreadyKept = false;    ///< one of them holds this very career, and no other is made
  std::string twin;            ///< the name of a New Year's copy that holds it; the new one takes its place
  std::vector<Snapshot> goes;  ///< pushed out by it, or by the budget; a question has to tell them
  bool beyondBudget = false;   ///< the budget is among the reasons

  /// One paragraph for that question, or "".
  std::string told() const;
};

/// Of each kind five copies stay. What a way back keeps never pushes out the copy that holds the furthest week of a
/// career, and nothing pushes out the one named `spared`.
SnapshotPlan planSnapshot(Store& store, SnapshotKind kind, const GameState& state, std::string_view spared = {});

/// Keeps a copy of what is stored, which is `state`, and lets go what its plan says. False when it could not be kept;
/// then none goes. A New Year asks nobody, so it is not kept where the budget would cost another copy.
bool keepSnapshot(Store& store, SnapshotKind kind, const GameState& state, Date now, std::string_view spared = {});

/// The copy that is missed least: the oldest that does not hold the furthest week of its career, else the oldest.
/// Nothing when there is none but `spared`.
std::optional<Snapshot> dispensableSnapshot(Store& store, std::string_view spared = {});

}  // namespace backbeat
