#include "recognition/achievement_grant.h"

#include <algorithm>

namespace backbeat {

void grantAchievement(Game& game, int64_t id) {
  std::vector<int64_t>& completed = game.state.AllCompletedAchievements;
  if (std::find(completed.begin(), completed.end(), id) != completed.end()) return;
  completed.push_back(id);
  game.save(&GameState::AllCompletedAchievements);
}

}  // namespace backbeat
