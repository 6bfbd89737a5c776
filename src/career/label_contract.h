// The running deal with a record label, and what it is told of releases.
#pragma once

#include "core/game.h"

namespace backbeat {

/// Position of the running contract in `saveAllContractLabelList`, or its size when none stands.
size_t runningContract(const GameState& state);

/// Counts a single released under contract towards the quota.
void recordSongRelease(Game& game);

inline constexpr int64_t fewestSongsOnLp = 6;  ///< an album with fewer is an EP

/// Counts an album released under contract, as EP or LP, and the songs that came out with it. `songCount` is what the
/// album holds, `songsReleasedNow` leaves out those released before it.
void recordAlbumRelease(Game& game, int64_t songCount, int64_t songsReleasedNow);

}  // namespace backbeat
