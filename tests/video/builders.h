// Videos for a test: sensible values; change what the test is about.
#pragma once

#include <cstdint>

#include "core/game_state.h"

namespace backbeat {

/// A video of that song, put out in the week that the state stands at, in its launch phase.
MusicVideo videoOf(const GameState& state, int64_t songId);

/// Puts a video out under the next id of the career, some weeks ago.
void addVideo(GameState& state, MusicVideo video, int64_t weeksAgo = 0);

/// A row of views for the week so many weeks ago. Older weeks have to come first.
void addVideoViews(GameState& state, const MusicVideo& video, int64_t weeksAgo, int64_t views);

}  // namespace backbeat
