// Achievements that are reached in the moment they happen, without being looked for afterwards.
#pragma once

#include <cstdint>

#include "core/game.h"
#include "core/outcome.h"

namespace backbeat {

/// What an artist can reach in love and family, by its number among the achievements.
namespace achievement {
inline constexpr int64_t perfectPartner = 206;
inline constexpr int64_t hipThrust = 207;
inline constexpr int64_t beachBody = 208;
inline constexpr int64_t veganInfluencer = 209;
inline constexpr int64_t openHeart = 211;
inline constexpr int64_t takeover = 307;
}  // namespace achievement

/// Completes it and saves that. False, and nothing changes, when it is completed already.
bool completeAchievement(Game& game, int64_t id);

/// The same in the middle of a press; whoever pressed is told of it when the press is over.
void grantAchievement(Game& game, int64_t id);

/// Tells, once, what the press has brought.
Outcome tellGrantedAchievements(Game& game);

}  // namespace backbeat
