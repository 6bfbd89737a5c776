// The player's own pictures, for covers, for the profile and for the view behind its head: kept with the save as data:
// addresses. The key of the profile's picture also keeps which of the portraits drawn after the name was chosen.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/game.h"
#include "core/outcome.h"
#include "core/view.h"

namespace backbeat {

inline constexpr size_t largestPhoto = 204'800;  ///< bytes of the whole address
inline constexpr const char* photoLimit = "Travels with your save, 200 KB at most";

/// Why a text cannot be kept as a photo: it is no picture (PNG, JPEG, WebP or GIF in base64), or it is too large for a
/// save. Nothing when it can.
std::optional<Outcome> photoRefusal(std::string_view address);

/// The field that takes a photo; its press carries the address, or nothing to do without one.
PhotoField photoField(bool taken);

/// Adds the field, and below it what takes the photo away again: a press of "removePhoto", or of "remove" and the
/// field's id with its first letter large.
void addPhotoField(View& view, const PhotoField& field);
std::string removalOf(const PhotoField& field);

/// Whether the profile has the player's own photo, and the view behind its head.
bool hasOwnPhoto(const GameState& state);
bool hasOwnHeader(const GameState& state);

/// Takes the address as the profile's photo, or as the view behind its head; an empty one takes away what is there.
Outcome takeProfilePhoto(Game& game, const std::string& address);
Outcome takeHeader(Game& game, const std::string& address);

/// Chooses the next of the twelve portraits that a name can have; after the last comes the first. A photo goes.
void chooseNextPortrait(Game& game);

/// Draws the artist after that name from now on, whatever the artist is called: an heir keeps the face of the child.
void bringPortrait(Game& game, std::string_view name);

/// The artist's portrait: the player's own photo, or one drawn after the name, which may be one that is being typed.
Picture artistPicture(const GameState& state);
Picture artistPicture(const GameState& state, const std::string& name);
/// The same for somebody of that name of whom `twitterProfileImage` was kept.
Picture portraitOf(const std::string& kept, const std::string& name);

/// What lies behind the head of the profile: the player's own photo, or a drawn stage.
Picture headerPicture(const GameState& state);

}  // namespace backbeat
