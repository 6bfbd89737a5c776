// How an album stands in a list.
#pragma once

#include <vector>

#include "core/game_state.h"
#include "core/view.h"

namespace backbeat {

/// An album in a list of the player's own: cover, title, songs on it, and what it has sold. A press of "album:<id>"
/// opens it.
Row albumRow(const GameState& state, const Album& album);

/// "12 weeks left", or that nobody buys it any more: how long a released album still sells.
std::string lifeLeft(const GameState& state, const Album& album);

/// Positions of the songs on an album, in the order of their making.
std::vector<size_t> songsOnAlbum(const GameState& state, int64_t albumId);

/// "LP · 8 songs": six songs make an LP, fewer an EP.
std::string albumFormat(const Album& album);

}  // namespace backbeat
