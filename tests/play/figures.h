// What every figure of every screen stands for. A room tells it for its own screens in its `..._figures.cpp`: what
// belongs into the world in which no two figures are equal, and for each screen one line a figure: where it stands,
// what it is told from, and where a press of it leads. What shows a number, wears a badge or leads somewhere, and is
// not in the table, fails.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/game.h"
#include "core/outcome.h"
#include "core/view.h"
#include "play/own_values.h"

namespace backbeat {

/// Something that stands on a screen.
struct Standing {
  std::string where;         ///< "Followers", "Energy: note", "Paper Boats: subtitle"; see `standingsOn`
  std::string says;          ///< the text itself; a share or points as decimals
  std::string leadsTo = {};  ///< segue and argument of a press: "goToSongDetail 12"; "" when nothing leads on
};
using Standings = std::vector<Standing>;

/// One screen and what has to stand on it.
struct ScreenFigures {
  std::string_view segue;  ///< or the name of a tab
  std::string argument = {};
  /// What is told from what. The game is a twin of the screen's own, before the screen opened: asking it for what the
  /// screen draws gives the same draws.
  std::function<Standings(Game& twin)> figures;
  void (*before)(Game&) = nullptr;  ///< what happened, in both games, before the screen opened
  std::vector<Action> presses = {};
  std::vector<std::string> noFigures = {};  ///< places whose numbers stand for nothing: "About", "card*"
};

/// What a room brings to the world and to the table. Defined in a `..._figures.cpp` of the room, it is found without
/// being listed anywhere; a room can have several.
struct FiguresOf {
  void (*furnish)(GameState& state, OwnValues& own) = nullptr;
  std::vector<ScreenFigures> (*screens)() = nullptr;
  const FiguresOf* next = std::exchange(first(), this);

  static const FiguresOf*& first();
};

/// Everything that stands on a screen, in reading order; `leadsTo` holds the action of a press instead of its way. A
/// row stands under its title with its value, a tile, a figure, a meter under its label, and what else they say under
/// ": note", ": subtitle", ": badge", ": price", ": share", ": points". What has no name stands under its kind:
/// "subtitle", "portrait", "text", "cover", "card: text". Places are numbered.
Standings standingsOn(const View& view);

/// "7 energy", "$1,200", "5 energy $300".
std::string priceText(const Price& price);
/// As a share of a bar or a row reads among the standings.
std::string shareText(double share);
std::string pointsText(const std::vector<double>& points);

/// The same, places that come again numbered: "Songs", "Songs (2)".
Standings numbered(Standings standings);

/// One list after the other.
Standings operator+(Standings a, const Standings& b);

}  // namespace backbeat
