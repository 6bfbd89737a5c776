// What the program says when it has to stop on the spot, so that a player learns what it was and that the save is safe.
#pragma once

namespace backbeat {

enum StopCode { outgrown = 70, outOfMemory = 71, fault = 72 };

/// From now on a stop is told in one line: an amount that outgrew its number (exit code 70), a computer without memory
/// left (71), a fault inside the game (72). What was committed stays.
void tellLastWords();

}  // namespace backbeat
