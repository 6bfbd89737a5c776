// What a week meant: first times and records, told from the state before a turn and the one after. Nothing is kept.
#pragma once

#include <string>
#include <vector>

#include "core/game.h"
#include "core/week_rows.h"

namespace backbeat {

struct Milestone {
  /// Greatest first.
  enum class Kind { numberOne, certification, chartDebut, newPeak, recordWeek } kind = Kind::recordWeek;
  int64_t songId = -1;      ///< -1 when it is about an album
  int64_t albumId = -1;     ///< -1 when it is about a song
  std::string text;         ///< what happened, the title in it
  int64_t number = 0;       ///< the rank, the certification's tier, or the count of the week
  std::string amount = {};  ///< that count in words, of a record alone
};

/// Taken before the week cycle.
MilestoneSnapshot milestoneSnapshot(Game& game);

/// What the week brought, greatest first, at most one chart milestone for a song. `week` is the week that ended. A song
/// that the chart no longer shows makes no chart milestones; a record needs three earlier weeks to beat.
std::vector<Milestone> milestonesSince(const MilestoneSnapshot& before, const GameState& after, CalendarWeek week);

}  // namespace backbeat
