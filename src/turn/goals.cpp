#include "turn/goals.h"

#include "career/contract_offers.h"

namespace backbeat {

namespace {

constexpr size_t weeksOfPace = 4;
constexpr int64_t farthestEstimate = 104;  ///< weeks; beyond it a pace says nothing

}  // namespace

ListenerGoal nextListenerGoal(const GameState& state) {
  ListenerGoal goal{.listeners = 10};
  while (goal.listeners <= state.totalFans) goal.listeners *= 10;
  const bool isFree = state.isLabelLaunched < 1 && state.underContract < 1;
  if (isFree && state.totalFans < fewestFansForOffer && goal.listeners > fewestFansForOffer) {
    goal.listeners = fewestFansForOffer;
    goal.isLabels = true;
  }
  const std::vector<int64_t>& history = state.monthlyListenerData;
  if (history.size() <= weeksOfPace) return goal;
  const int64_t gained = history.back() - history[history.size() - 1 - weeksOfPace];
  if (gained <= 0) return goal;
  const double pace = static_cast<double>(gained) / static_cast<double>(weeksOfPace);
  const double weeks = static_cast<double>(goal.listeners - state.totalFans) / pace;
  if (weeks <= static_cast<double>(farthestEstimate)) goal.weeks = static_cast<int64_t>(weeks) + 1;
  return goal;
}

}  // namespace backbeat
