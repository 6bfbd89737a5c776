#include "recognition/achievements.h"

#include <algorithm>

#include "core/money.h"
#include "core/short_money.h"
#include "recognition/achievement_grant.h"

namespace backbeat {

namespace {

/// Of the goals that are still open.
std::vector<const Achievement*> reachedGoals(const GameState& state) {
  std::vector<const Achievement*> reached;
  for (const Achievement& goal : achievements()) {
    if (!goal.measure || isCompleted(state, goal.id)) continue;
    if (goal.measure(state, goal.amount).reached()) reached.push_back(&goal);
  }
  return reached;
}

constexpr int64_t weeksBetweenLongLooks = 4;

/// A quick look for what is reached one week and may be lost the next; nullptr for a goal that stays reached.
Measure lookForPassing(const Achievement& goal) {
  using namespace progress;
  if (goal.measure == debutAtOne) return debutAtOneNow;
  const bool passes = goal.measure == netWorth || goal.measure == listeners || goal.measure == subscribers ||
                      goal.measure == stealthBomber || goal.measure == ventureWorth || goal.measure == topTenAtOnce;
  return passes ? goal.measure : nullptr;
}

/// Brings up to date which of the goals that may be lost again wait.
void updatePassing(const GameState& state, std::vector<int64_t>& ids) {
  for (const Achievement& goal : achievements()) {
    const Measure look = lookForPassing(goal);
    if (!look || isCompleted(state, goal.id)) continue;
    const bool waited = std::erase(ids, goal.id) > 0;
    if ((waited ? goal.measure : look)(state, goal.amount).reached()) ids.push_back(goal.id);
  }
}

}  // namespace

std::string Achievement::task() const {
  std::string told(description);
  if (description.ends_with(" of") || description.ends_with(" least")) {
    told += dollars ? " " + currency(static_cast<double>(amount)) : " " + withCommas(amount);
  }
  return told;
}

std::string Achievement::amountText(double told) const {
  constexpr double tooLong = 10'000;
  std::string text = dollars          ? abbreviatedDollars(told)
                     : told < tooLong ? withCommas(static_cast<int64_t>(told))
                                      : abbreviated(told);
  if (const size_t nothing = text.find(".0"); nothing != std::string::npos) text.erase(nothing, 2);
  return text;
}

const Achievement* achievementWithId(int64_t id) {
  const auto all = achievements();
  const auto found = std::find_if(all.begin(), all.end(), [&](const Achievement& goal) { return goal.id == id; });
  return found == all.end() ? nullptr : &*found;
}

bool isCompleted(const GameState& state, int64_t id) {
  const std::vector<int64_t>& completed = state.AllCompletedAchievements;
  return std::find(completed.begin(), completed.end(), id) != completed.end();
}

int64_t completedCount(const GameState& state) {
  const auto all = achievements();
  return std::count_if(all.begin(), all.end(), [&](const Achievement& goal) { return isCompleted(state, goal.id); });
}

int64_t goalsToCollect(const Game& game) {
  GoalsInSight& inSight = game.launch.goalsInSight;
  const int64_t week = game.state.weekNumberForTracking;
  const bool isFresh =
      inSight.longLook >= 0 && week >= inSight.longLook && week < inSight.longLook + weeksBetweenLongLooks;
  if (!isFresh) {
    inSight = {week, week, {}};
    for (const Achievement* goal : reachedGoals(game.state)) inSight.ids.push_back(goal->id);
  } else if (inSight.lastLook != week || !inSight.ids.empty()) {
    inSight.lastLook = week;
    updatePassing(game.state, inSight.ids);
  }
  return static_cast<int64_t>(inSight.ids.size());
}

std::vector<const Achievement*> completeReached(Game& game) {
  std::vector<const Achievement*> reached = reachedGoals(game.state);
  for (const Achievement* goal : reached) completeAchievement(game, goal->id);
  game.launch.goalsInSight = {game.state.weekNumberForTracking, game.state.weekNumberForTracking, {}};
  return reached;
}

}  // namespace backbeat
