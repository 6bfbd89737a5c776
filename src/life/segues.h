// What this room brings to the player's glass.
#pragma once

#include "core/room.h"

namespace backbeat {

extern const Room lifeRoom;

}  // namespace backbeat
