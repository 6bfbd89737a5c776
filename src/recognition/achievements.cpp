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
  const bool isFresh = inSight.absoluteWeek >= 0 && week >= inSight.absoluteWeek && week < inSight.absoluteWeek + 4;
  if (!isFresh) inSight = {week, static_cast<int64_t>(reachedGoals(game.state).size())};
  return inSight.count;
}

std::vector<const Achievement*> completeReached(Game& game) {
  std::vector<const Achievement*> reached = reachedGoals(game.state);
  for (const Achievement* goal : reached) completeAchievement(game, goal->id);
  game.launch.goalsInSight = {game.state.weekNumberForTracking, 0};
  return reached;
}

}  // namespace backbeat
