// The way to a screen: what it is called, how the screen is shown and made, and who may go.
#pragma once

#include <memory>
#include <string_view>

#include "core/screen.h"

namespace backbeat {

struct Segue {
  std::string_view name;    ///< "goToSongDetail"
  std::string_view screen;  ///< "SongDetailViewController"
  enum class Presentation {
    push,   ///< onto the stack of the tab shown
    modal,  ///< over header and tabs; leaves only by its own doing
  } presentation;
  std::unique_ptr<Screen> (*make)(Game& game, std::string_view argument);
  /// Asked before the screen is made, from wherever the way begins; a visit that costs is paid here. Unless it is done,
  /// the screen stays shut. nullptr: always open.
  Outcome (*enter)(Game& game) = nullptr;
};

/// The way into another life, for a screen to answer with instead of a segue: every screen of every tab and every modal
/// one is closed, what they still had to say is dropped, home is opened anew, and an artist without a name is asked for
/// one on the music tab. The alerts of that answer come after it.
inline constexpr std::string_view startOverSegue = "startOver";

template <class S>
std::unique_ptr<Screen> makeScreen(Game& game, std::string_view) {
  return std::make_unique<S>(game);
}

/// For screens about one record: the argument is its id. Nonsense gives a screen about nothing.
template <class S>
std::unique_ptr<Screen> makeScreenWithId(Game& game, std::string_view argument) {
  return std::make_unique<S>(game, wholeNumber(argument).value_or(-1));
}

}  // namespace backbeat
