// Achievements that are reached in the moment they happen, without being looked for afterwards.
#pragma once

#include <cstdint>

#include "core/game.h"

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

/// Completes it and saves that; does nothing when it is completed already.
void grantAchievement(Game& game, int64_t id);

}  // namespace backbeat
