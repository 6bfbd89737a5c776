// Two screens that no room has: one says everything that a view can say, one says nothing with all of its words.
#pragma once

#include "core/view.h"

namespace backbeat {

/// Every kind of block with every member set, in every style, mood and tone.
View everyBlock();
/// Every kind of block, and every list of it with one thing in it, all on their defaults.
View barestBlocks();

}  // namespace backbeat
