// The weekly views of music videos: what they earn, and how their marketing and virality fade.
#pragma once

#include "core/game.h"

namespace backbeat {

/// The weeks a video is still watched: its rating less its age. It is viewed while this is above 0.
double remainingLife(const GameState& state, const MusicVideo& video);

/// Whether no turn shows or tells of it any more: its life is over, and its first week too.
bool isForgotten(const GameState& state, const MusicVideo& video);
/// Lets forgotten videos sleep. Called when a turn begins.
void letForgottenVideosSleep(GameState& state);

/// Step 3 of the turn. Sorts the videos by virality, and lets each one be viewed: in its launch phase (marketing above
/// 0) by subscribers, marketing and virality; in its residual phase (marketing 0) by what it has been viewed already.
/// Without a video nothing is drawn.
void simulateWeeklyVideoViews(Game& game);

}  // namespace backbeat
