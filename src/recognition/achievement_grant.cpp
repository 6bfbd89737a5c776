#include "recognition/achievement_grant.h"

#include <utility>

#include "recognition/achievements.h"

namespace backbeat {

bool completeAchievement(Game& game, int64_t id) {
  if (isCompleted(game.state, id)) return false;
  game.state.AllCompletedAchievements.push_back(id);
  game.save(&GameState::AllCompletedAchievements);
  return true;
}

void grantAchievement(Game& game, int64_t id) {
  if (completeAchievement(game, id)) game.launch.achievementsToTell.push_back(id);
}

Outcome tellGrantedAchievements(Game& game) {
  Outcome outcome;
  for (const int64_t id : std::exchange(game.launch.achievementsToTell, {})) {
    const Achievement* goal = achievementWithId(id);
    if (!goal) continue;
    outcome += news<"🏆 Achievement 🏆">("\n" + std::string(goal->title) + "\n\n" + goal->task());
  }
  return outcome;
}

}  // namespace backbeat
