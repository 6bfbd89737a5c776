// Which picture a song, an album or a video wears, wherever it appears.
#pragma once

#include <span>

#include "core/game_state.h"
#include "core/view.h"

namespace backbeat {

/// The picture behind a stored name: the player's own photo as a data: address, or artwork of that name.
Picture pictureOf(const std::string& imageString);

/// The album's chosen cover: one of the generated ones by name, or the player's own photo. Artwork named after the
/// title when none was chosen.
Picture coverOf(const GameState& state, const Album& album);

/// The cover of its album, or artwork named after the title for a single.
Picture coverOf(const GameState& state, const Song& song);

/// The same by id, for records that outlive their song.
Picture coverOfSong(const GameState& state, int64_t songId, const std::string& title);

/// Gives a row that is about several songs their covers, as many different ones as it has room for. Songs that are gone
/// have none.
void fanOutCovers(Row& row, const GameState& state, std::span<const int64_t> songIds);

/// A frame of a video: by its style, in the colours of the song's sleeve, with the artist in it, as its director sees
/// it. The second is one of a video that is not shot yet; `style` is the index of one.
Picture stillOf(const GameState& state, const MusicVideo& video);
Picture stillOf(const GameState& state, const std::string& songTitle, size_t style, const std::string& director);

}  // namespace backbeat
