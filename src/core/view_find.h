// Looking things up in what a screen says of itself: what a test, a strategy or a walk through the game asks of a view.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "core/view.h"
#include "core/view_type.h"

namespace backbeat {

/// The first block of that kind; nullptr for none.
template <class Kind>
const Kind* findBlock(const View& view) {
  for (const Block& block : view.blocks) {
    if (const Kind* found = std::get_if<Kind>(&block)) return found;
  }
  return nullptr;
}
/// The first block of that kind with that id: a field, choice, toggle, slider, stepper or chart, or a window of rows.
template <class Kind>
const Kind* findBlock(const View& view, std::string_view id) {
  for (const Block& block : view.blocks) {
    const Kind* found = std::get_if<Kind>(&block);
    if (found && found->id == id) return found;
  }
  return nullptr;
}
/// All blocks of that kind, in reading order.
template <class Kind>
std::vector<const Kind*> findBlocks(const View& view) {
  std::vector<const Kind*> found;
  for (const Block& block : view.blocks) {
    if (const Kind* wanted = std::get_if<Kind>(&block)) found.push_back(wanted);
  }
  return found;
}

/// Every row of every list, in reading order.
std::vector<const Row*> findRows(const View& view);
/// The first row of that id, or title; nullptr for none. So it is with the others.
const Row* findRow(const View& view, std::string_view id);
const Row* findRowTitled(const View& view, std::string_view title);
/// Totals of figures included.
const Figure* findFigure(const View& view, std::string_view label);
const Tile* findTile(const View& view, std::string_view label);
const Total* findTotal(const View& view, std::string_view label);
/// A button of its own, of a card, or one that is pinned.
const Button* findButton(const View& view, std::string_view id);

/// Calls `visit` for each word of the view that has members, from the outside in: the view, a block, its rows, their
/// pictures.
void forEachRecord(const View& view, const std::function<void(const ViewType& type, const void* record)>& visit);
/// The member of a record that is a text of that name; nullptr for none.
const std::string* textOf(const ViewType& type, const void* record, std::string_view name);

/// The id of everything that can be pressed, each once, in reading order.
std::vector<std::string> pressableIds(const View& view);

}  // namespace backbeat
