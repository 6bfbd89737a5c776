// What screens say alike when today's career is kept aside before another one takes its place.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/game.h"
#include "core/outcome.h"

namespace backbeat {

/// For the question that goes before: that today's career is kept, and which copy goes for it; begins with an empty
/// line.
std::string keptAsideText(const Game& game, SnapshotKind kind, std::string_view spared = {});

/// The press that answers `keepAside` when a copy is to be given up; its argument is the name of the copy. The screen
/// forgets that copy and does again what it was about to do.
inline constexpr std::string_view giveUpVerb = "giveUp";

/// Keeps today's career aside. Nothing when that worked; else what the screen answers instead of going on: which copy
/// could be given up for it, or that nothing has changed.
std::optional<Outcome> keepAside(Game& game, SnapshotKind kind, std::string_view spared = {});

}  // namespace backbeat
