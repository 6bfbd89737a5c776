// Awards for a test: works of this year, nominations and past glory; change what the test is about.
#pragma once

#include <cstdint>
#include <string>

#include "core/game_state.h"

namespace backbeat {

/// A song of the artist's own that came out this year; `genre` is none where it is below 0.
int64_t addSongOfYear(GameState& state, const std::string& title, double rating, int64_t genre = -1);
/// An album of five songs that came out this year, all in one genre.
int64_t addAlbumOfYear(GameState& state, const std::string& title, double rating, int64_t genre = -1);

/// The same from somebody on the label.
int64_t addLabelSongOfYear(GameState& state, int64_t artistId, const std::string& title, double rating);
int64_t addLabelAlbumOfYear(GameState& state, int64_t artistId, const std::string& title, double rating);

/// The nominations of the year were opened; nobody but rivals stands in the main fields.
void openNominations(GameState& state);

/// A row of the history, and in a year that was opened a place in its field; `genre` is below 0 in the main fields.
Award nominationFor(const GameState& state, int64_t typeOfAward, const std::string& title, int64_t genre = -1);
void addNomination(GameState& state, Award award);

}  // namespace backbeat
