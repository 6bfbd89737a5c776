// Every screen of the game: where it is shown, under which segue, and how it is made. A new screen is one class and one
// line here.
#pragma once

#include <array>
#include <memory>
#include <span>
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
};

struct Tab {
  std::string_view label;
  std::string_view icon;
  Segue root;
};

inline constexpr size_t tabCount = 5;
enum TabNumber : size_t { homeTab, musicTab, lifeTab, businessTab, socialTab };

const std::array<Tab, tabCount>& tabs();
std::span<const Segue> segues();

/// The segue of that name, or nullptr.
const Segue* segueNamed(std::string_view name);

}  // namespace backbeat
