// What the wealth room brings to the glass.
#pragma once

#include "core/room.h"

namespace backbeat {

extern const Room wealthRoom;

}  // namespace backbeat
