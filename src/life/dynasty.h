// The family's book: those who were artists before, and what is told of them.
#pragma once

#include <string>

#include "core/game.h"
#include "core/view.h"

namespace backbeat {

/// "2005 – 2064"
std::string lifeYears(const Legacy& legacy);
/// "(child of Nova & Theo)", or "" for a first artist.
std::string childOfText(const Legacy& legacy);

/// A paragraph on the whole life.
std::string obituaryOf(const Legacy& legacy);
/// The page of the book: picture, years, that paragraph and the greatest figures.
Obituary pageOf(const Legacy& legacy);

/// The last three who were artists with their partners, the player, and the children. The id of one in the book is
/// "legacy:" and the place in the list, that of a child "child:" and its place.
Tree familyTree(const GameState& state);

}  // namespace backbeat
