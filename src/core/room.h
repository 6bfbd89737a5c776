// What a room brings to the player's glass. The registry in the shell joins those of all rooms.
#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "core/menu.h"
#include "core/needs.h"
#include "core/news.h"
#include "core/segue.h"

namespace backbeat {

struct Room {
  std::string_view name;  ///< as its folder
  std::span<const Segue> segues;
  std::span<const MenuLine> menu = {};
  /// Asked after every press, so it looks at little.
  void (*addNeeds)(const Game& game, std::vector<Need>& needs) = nullptr;
  /// Asked once a week, when the report opens and its cash is settled.
  void (*addNews)(const Game& game, std::vector<News>& news) = nullptr;
  /// What of it stands on the artist's page on the streaming service. The id of a row that opens is its segue, with the
  /// argument behind a colon.
  void (*addToProfile)(const Game& game, View& view) = nullptr;
};

}  // namespace backbeat
