// The comments shown under a video.
#pragma once

#include <string_view>
#include <vector>

#include "core/game_state.h"

namespace backbeat {

struct VideoComment {
  std::string_view author;
  std::string_view text;
};

/// Three to eight comments, no line and no author twice, by how good the video is. They follow from the video and the
/// week, so that they stay while one looks; no random draw is spent.
std::vector<VideoComment> commentsOn(const GameState& state, const MusicVideo& video);

}  // namespace backbeat
