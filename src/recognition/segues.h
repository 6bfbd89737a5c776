// What the recognition room brings to the glass.
#pragma once

#include "core/room.h"

namespace backbeat {

extern const Room recognitionRoom;

}  // namespace backbeat
