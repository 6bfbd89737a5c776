// How an album comes to be: a title of its own, a cover, and the terms of the day.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "core/game.h"
#include "core/outcome.h"

namespace backbeat {

/// Names of the generated covers to pick from. They are stored with the album, so a name is never changed or reused.
inline constexpr std::array<std::string_view, 30> albumCoverNames = {
    "Aurora", "Boulevard", "Cassette", "Desert", "Eclipse",  "Ferris",     "Glacier",   "Harbour",
    "Ivory",  "Jungle",    "Kite",     "Lagoon", "Monsoon",  "Nebula",     "Orchid",    "Prism",
    "Quartz", "Rooftop",   "Saffron",  "Tundra", "Undertow", "Vinyl",      "Waterfall", "Xenon",
    "Yacht",  "Zeppelin",  "Bonfire",  "Marble", "Subway",   "Wildflower",
};

/// How a generated cover is stored and drawn: apart from titles, so that no single looks like it by chance.
std::string albumCoverImage(std::string_view name);

/// Position of an album of the artist by its id. The built-in "Single" is none of them.
std::optional<size_t> albumPosition(const GameState& state, int64_t albumId);

/// Creates an album in production at $3.99. Refused for a title that is empty or taken by another album ignoring case,
/// and for one with a bracket, since song pickers write the count in brackets behind a title. Under contract its
/// marketing is the contract's, and so are share and price when the contract sets a price; the artist's own label adds
/// its marketing. Success asks the screen to close.
Outcome createAlbum(Game& game, const std::string& title, const std::string& imageString);

/// Whether an album has this title, ignoring case and white space around it.
bool albumTitleTaken(const GameState& state, const std::string& title);

}  // namespace backbeat
