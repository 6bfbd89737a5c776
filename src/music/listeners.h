// Monthly listeners: the game's one measure of fame.
#pragma once

#include "core/game.h"

namespace backbeat {

inline constexpr size_t listenerWeeksRemembered = 26;  ///< of `monthlyListenerData`

/// How many weeks a release counts for the listeners, more or less as it ages; what is older counts like what is
/// forgotten.
inline constexpr int64_t songWeeksRemembered = 120;
inline constexpr int64_t albumWeeksRemembered = 160;

/// What a week does to the listeners: mean rating of recent songs / 10 * (luck * recency), cut towards 0; 0 when it
/// would take the total below 0. `basis` for the luck is the listeners plus the marketing pool's mean.
int64_t weeklyFanGainFor(Game& game, int64_t marketingPoolMean, double recency, double meanRating);

/// How much the latest release still counts, by weeks since it.
double songRecencyFor(int64_t weeksSince);
double albumRecencyFor(int64_t weeksSince);

/// Step 5 of the turn; reads the marketing pool of steps 1 and 2. Followers and subscribers follow the listeners, up
/// and down, and may go below 0: intended.
void simulateWeeklyListeners(Game& game);

}  // namespace backbeat
