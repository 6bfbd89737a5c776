// What the room of tours and festivals brings to the glass.
#pragma once

#include "core/room.h"

namespace backbeat {

extern const Room liveRoom;

}  // namespace backbeat
