// Every screen of the game, as the rooms bring them, and the tabs. A new screen is one line in the segues of its room;
// a new room is one line here.
#pragma once

#include <array>
#include <span>
#include <string_view>

#include "core/room.h"

namespace backbeat {

struct Tab {
  std::string_view label;
  std::string_view icon;
  Segue root;
};

const std::array<Tab, tabCount>& tabs();

/// From the top of the house down.
std::span<const Room* const> rooms();

/// Of all rooms.
std::span<const Segue> segues();

/// The segue of that name, or nullptr.
const Segue* segueNamed(std::string_view name);

}  // namespace backbeat
