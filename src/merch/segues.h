// What the merch room brings to the glass.
#pragma once

#include "core/room.h"

namespace backbeat {

extern const Room merchRoom;

}  // namespace backbeat
