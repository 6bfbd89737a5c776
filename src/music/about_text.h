// What the artist says of themselves, on the profile as on the channel.
#pragma once

#include <string>

#include "core/game.h"

namespace backbeat {

inline constexpr size_t longestAboutText = 600;  ///< characters

/// Takes the text, cut to its greatest length.
void writeAbout(Game& game, const std::string& text);

}  // namespace backbeat
