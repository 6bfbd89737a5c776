#include "core/view_find.h"

#include <algorithm>

#include "core/view_fields.h"

namespace backbeat {

namespace {

using Visit = std::function<void(const ViewType&, const void*)>;

/// The first of the items whose `member` is that text.
template <class Item>
const Item* firstOf(const std::vector<Item>& items, std::string Item::*member, std::string_view text) {
  for (const Item& item : items) {
    if (item.*member == text) return &item;
  }
  return nullptr;
}

const Row* rowWith(const View& view, std::string Row::*member, std::string_view text) {
  for (const Rows* rows : findBlocks<Rows>(view)) {
    if (const Row* found = firstOf(rows->items, member, text)) return found;
  }
  return nullptr;
}

void walk(const ViewType& type, const void* value, const Visit& visit) {
  switch (type.kind) {
    case ViewType::Kind::record:
      visit(type, value);
      for (const ViewField& field : type.fields) walk(*field.type, type.valueOf(field, value), visit);
      break;
    case ViewType::Kind::block: {
      const Block& block = *static_cast<const Block*>(value);
      walk(*kindOf(block).type, contentOf(block), visit);
      break;
    }
    case ViewType::Kind::list:
    case ViewType::Kind::optional: {
      const ViewType::Items held = type.items(value);
      for (size_t i = 0; i < held.count; ++i) walk(*type.item, type.itemAt(held, i), visit);
      break;
    }
    default: break;
  }
}

}  // namespace

std::vector<const Row*> findRows(const View& view) {
  std::vector<const Row*> found;
  for (const Rows* rows : findBlocks<Rows>(view)) {
    for (const Row& row : rows->items) found.push_back(&row);
  }
  return found;
}

const Row* findRow(const View& view, std::string_view id) { return rowWith(view, &Row::id, id); }
const Row* findRowTitled(const View& view, std::string_view title) { return rowWith(view, &Row::title, title); }

const Figure* findFigure(const View& view, std::string_view label) {
  for (const Figures* figures : findBlocks<Figures>(view)) {
    if (const Figure* found = firstOf(figures->items, &Figure::label, label)) return found;
    if (figures->total && figures->total->label == label) return &*figures->total;
  }
  return nullptr;
}

const Tile* findTile(const View& view, std::string_view label) {
  for (const Tiles* tiles : findBlocks<Tiles>(view)) {
    if (const Tile* found = firstOf(tiles->items, &Tile::label, label)) return found;
  }
  return nullptr;
}

const Total* findTotal(const View& view, std::string_view label) { return firstOf(view.totals, &Total::label, label); }

const Button* findButton(const View& view, std::string_view id) {
  for (const std::optional<Button>* pinned : {&view.mainAction, &view.aside}) {
    if (*pinned && (*pinned)->id == id) return &**pinned;
  }
  if (const Button* found = findBlock<Button>(view, id)) return found;
  for (const Card* card : findBlocks<Card>(view)) {
    if (const Button* found = firstOf(card->buttons, &Button::id, id)) return found;
  }
  return nullptr;
}

void forEachRecord(const View& view, const Visit& visit) { walk(viewType<View>, &view, visit); }

const std::string* textOf(const ViewType& type, const void* record, std::string_view name) {
  for (const ViewField& field : type.fields) {
    if (field.name != name || field.type->kind != ViewType::Kind::text) continue;
    return static_cast<const std::string*>(type.valueOf(field, record));
  }
  return nullptr;
}

std::vector<std::string> pressableIds(const View& view) {
  std::vector<std::string> ids;
  forEachRecord(view, [&](const ViewType& type, const void* record) {
    for (const char* member : {"id", "suggest"}) {
      const std::string* id = textOf(type, record, member);
      if (id && !id->empty() && std::find(ids.begin(), ids.end(), *id) == ids.end()) ids.push_back(*id);
    }
  });
  return ids;
}

}  // namespace backbeat
