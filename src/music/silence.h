// What has fallen silent. A long career has thousands of songs, and only some hundred of them that a turn still moves
// or counts: it looks at these alone (`awake`, core/chunked_list.h), so that the silent ones cost it nothing.
#pragma once

#include "core/game.h"

namespace backbeat {

/// Whether no turn moves or counts it any more unless it is changed: it is out, has no life left, is on no chart and is
/// older than what the listeners remember.
bool isSilent(const GameState& state, const Song& song);
/// The same of an album, whose songs get no better once it is out.
bool isSilent(const GameState& state, const Album& album);

/// Lets silent songs and albums and the rows off the chart sleep. Called when a turn begins.
void letSilentMusicSleep(GameState& state);

}  // namespace backbeat
