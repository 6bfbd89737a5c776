// Looking things up in what a screen says of itself: what a test, a strategy or a walk through the game asks of a view.
// Answers are copies, so that the view may be gone; what is not there is answered by a thing without any text.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "core/view.h"
#include "core/view_type.h"

namespace backbeat {

/// All blocks of that kind, in reading order.
template <class Kind>
std::vector<Kind> blocksOf(const View& view) {
  std::vector<Kind> found;
  for (const Block& block : view.blocks) {
    if (const Kind* wanted = std::get_if<Kind>(&block)) found.push_back(*wanted);
  }
  return found;
}
/// The first block of that kind.
template <class Kind>
Kind blockOf(const View& view) {
  for (const Block& block : view.blocks) {
    if (const Kind* wanted = std::get_if<Kind>(&block)) return *wanted;
  }
  return {};
}
/// The block of that kind and id: a field, choice, toggle, slider, stepper or chart, or a window of rows.
template <class Kind>
Kind blockWithId(const View& view, std::string_view id) {
  for (const Block& block : view.blocks) {
    const Kind* wanted = std::get_if<Kind>(&block);
    if (wanted && wanted->id == id) return *wanted;
  }
  return {};
}

/// Every row of every list, in reading order.
std::vector<Row> rowsOf(const View& view);
Row rowWithId(const View& view, std::string_view id);
Row rowTitled(const View& view, std::string_view title);
/// A button of its own, of a card, or one that is pinned.
Button buttonWithId(const View& view, std::string_view id);
Tile tileLabelled(const View& view, std::string_view label);
Gauge gaugeLabelled(const View& view, std::string_view label);
/// Of all figures, totals included.
Figure figureLabelled(const View& view, std::string_view label);
/// Of those pinned above the main button.
Total totalLabelled(const View& view, std::string_view label);

/// Calls `visit` for each word of the view that has members, from the outside in: the view, a block, its rows, their
/// pictures.
void forEachRecord(const View& view, const std::function<void(const ViewType& type, const void* record)>& visit);
/// The member of a record that is a text of that name; nullptr for none.
const std::string* textOf(const ViewType& type, const void* record, std::string_view name);

/// The id of everything that can be pressed, each once, in reading order.
std::vector<std::string> pressableIds(const View& view);
/// Whether it is among them.
bool isPressable(const View& view, std::string_view id);

}  // namespace backbeat
