// The menus on the first screens of the tabs: lines that the rooms contribute.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "core/game.h"
#include "core/outcome.h"
#include "core/view.h"

namespace backbeat {

inline constexpr size_t tabCount = 5;
enum TabNumber : size_t { homeTab, musicTab, lifeTab, businessTab, socialTab };

/// One line of a menu.
struct MenuLine {
  TabNumber tab;
  std::string_view section;  ///< the heading above it
  int64_t order = 0;         ///< within the tab; the lines of a section stand together
  std::string_view icon;
  std::string_view title;
  std::string_view subtitle = {};
  std::string_view segue;
  std::string_view argument = {};
  std::string_view id = {};                                ///< of the press; "" for the segue
  bool (*shown)(const Game& game) = nullptr;               ///< nullptr: always
  void (*describe)(const Game& game, Row& row) = nullptr;  ///< puts in what follows from the state
  Price (*price)(const GameState& state) = nullptr;        ///< of opening it
  std::string_view (*badge)(const Game& game) = nullptr;   ///< worn by the line, and by its tab
};

/// Adds a tab's lines, section by section.
void addMenu(View& view, const Game& game, TabNumber tab);

/// Where a press leads; nowhere when no line that is shown has its id.
Outcome followMenu(const Game& game, TabNumber tab, const Action& action);

/// What the tab wears: the first badge of its lines, or "".
std::string menuBadge(const Game& game, TabNumber tab);

}  // namespace backbeat
