// What the screens of love say alike.
#pragma once

#include "core/view.h"

namespace backbeat {

/// Four bands, with limits at 25, 50 and 80.
Tone chemistryTone(double chemistry);

}  // namespace backbeat
