#include "core/needs.h"

#include "core/room.h"
#include "core/sorting.h"

namespace backbeat {

namespace {

std::vector<Need> needsOf(const Game& game) {
  std::vector<Need> needs;
  for (const Room* room : game.rooms) {
    if (room->addNeeds) room->addNeeds(game, needs);
  }
  sortStably(needs, [](const Need& a, const Need& b) { return a.priority > b.priority; });
  if (needs.size() > mostNeeds) needs.resize(mostNeeds);
  return needs;
}

std::string idOf(const Need& need) { return need.argument.empty() ? need.segue : need.segue + ":" + need.argument; }

}  // namespace

void listNeeds(View& view, const Game& game) {
  Rows rows;
  for (const Need& need : needsOf(game)) {
    rows.items.push_back({.picture = need.picture,
                          .title = need.title,
                          .subtitle = need.subtitle,
                          .badge = need.badge,
                          .price = need.price,
                          .opens = true,
                          .id = idOf(need)});
  }
  if (rows.items.empty()) return;
  view.add(Heading{"This week"});
  view.add(std::move(rows));
}

Outcome followNeed(const Game& game, const Action& action) {
  for (const Need& need : needsOf(game)) {
    if (idOf(need) == action.id) return goTo(need.segue, need.argument);
  }
  return {};
}

std::string needsBadge(const Game& game) {
  for (const Need& need : needsOf(game)) {
    if (!need.badge.empty()) return need.badge;
  }
  return {};
}

}  // namespace backbeat
