#include "core/menu.h"

#include <vector>

#include "core/room.h"
#include "core/sorting.h"
#include "core/view_words.h"

namespace backbeat {

namespace {

std::vector<const MenuLine*> linesOf(const Game& game, TabNumber tab) {
  std::vector<const MenuLine*> lines;
  for (const Room* room : game.rooms) {
    for (const MenuLine& line : room->menu) {
      if (line.tab == tab && (!line.shown || line.shown(game))) lines.push_back(&line);
    }
  }
  sortStably(lines, [](const MenuLine* a, const MenuLine* b) { return a->order < b->order; });
  return lines;
}

std::string_view idOf(const MenuLine& line) { return line.id.empty() ? line.segue : line.id; }

Row rowOf(const Game& game, const MenuLine& line) {
  Row row = wayTo(std::string(idOf(line)), std::string(line.icon), std::string(line.title), std::string(line.subtitle));
  if (line.describe) line.describe(game, row);
  if (line.price) row.price = line.price(game.state);
  if (line.badge) row.badge = line.badge(game);
  return row;
}

}  // namespace

void addMenu(View& view, const Game& game, TabNumber tab) {
  const std::vector<const MenuLine*> lines = linesOf(game, tab);
  for (size_t i = 0; i < lines.size();) {
    const std::string_view section = lines[i]->section;
    view.add(Heading{.text = std::string(section)});
    Rows rows;
    for (; i < lines.size() && lines[i]->section == section; ++i) rows.items.push_back(rowOf(game, *lines[i]));
    view.add(std::move(rows));
  }
}

Outcome followMenu(const Game& game, TabNumber tab, const Action& action) {
  for (const MenuLine* line : linesOf(game, tab)) {
    if (idOf(*line) == action.id) return goTo(std::string(line->segue), std::string(line->argument));
  }
  return {};
}

std::string menuBadge(const Game& game, TabNumber tab) {
  for (const MenuLine* line : linesOf(game, tab)) {
    const std::string_view badge = line->badge ? line->badge(game) : "";
    if (!badge.empty()) return std::string(badge);
  }
  return {};
}

}  // namespace backbeat
