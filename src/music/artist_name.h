// The artist's name: how it is taken, and what somebody without one might be called.
#pragma once

#include <string>

#include "core/game.h"

namespace backbeat {

/// Takes the text as it stands: nothing is trimmed, and an empty name is accepted, on purpose. What was posted and made
/// under an earlier name keeps it; awards go by the new one.
void nameArtist(Game& game, const std::string& name);

/// A stage name by hash: the same salt gives the same name, and no random draw is spent.
std::string suggestedStageName(uint64_t salt);

}  // namespace backbeat
