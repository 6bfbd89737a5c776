// What a room brings to the player's glass. The registry in the shell joins those of all rooms.
#pragma once

#include <span>

#include "core/segue.h"

namespace backbeat {

struct Room {
  std::span<const Segue> segues;
};

}  // namespace backbeat
