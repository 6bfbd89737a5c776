#include "core/view_find.h"

#include <algorithm>

#include "core/view_fields.h"

namespace backbeat {

namespace {

using Visit = std::function<void(const ViewType&, const void*)>;

/// The first item of all blocks of that kind whose `member` is that text.
template <class Kind, class Item>
Item firstOf(const View& view, std::string Item::*member, std::string_view text) {
  for (const Block& block : view.blocks) {
    const Kind* kind = std::get_if<Kind>(&block);
    if (!kind) continue;
    for (const Item& item : kind->items) {
      if (item.*member == text) return item;
    }
  }
  return {};
}

constexpr const char* pressedMembers[] = {"id", "suggest", "pictureId"};

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

std::vector<Row> rowsOf(const View& view) {
  std::vector<Row> all;
  for (const Rows& rows : blocksOf<Rows>(view)) all.insert(all.end(), rows.items.begin(), rows.items.end());
  return all;
}

Row rowWithId(const View& view, std::string_view id) { return firstOf<Rows>(view, &Row::id, id); }

Row rowTitled(const View& view, std::string_view title) { return firstOf<Rows>(view, &Row::title, title); }

Button buttonWithId(const View& view, std::string_view id) {
  for (const std::optional<Button>& pinned : {view.mainAction, view.aside}) {
    if (pinned && pinned->id == id) return *pinned;
  }
  for (const Card& card : blocksOf<Card>(view)) {
    for (const Button& button : card.buttons) {
      if (button.id == id) return button;
    }
  }
  return blockWithId<Button>(view, id);
}

Tile tileLabelled(const View& view, std::string_view label) { return firstOf<Tiles>(view, &Tile::label, label); }

Gauge gaugeLabelled(const View& view, std::string_view label) { return firstOf<Gauges>(view, &Gauge::label, label); }

Figure figureLabelled(const View& view, std::string_view label) {
  for (const Figures& figures : blocksOf<Figures>(view)) {
    for (const Figure& figure : figures.items) {
      if (figure.label == label) return figure;
    }
    if (figures.total && figures.total->label == label) return *figures.total;
  }
  return {};
}

Total totalLabelled(const View& view, std::string_view label) {
  for (const Total& total : view.totals) {
    if (total.label == label) return total;
  }
  return {};
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
    for (const char* member : pressedMembers) {
      const std::string* id = textOf(type, record, member);
      if (id && !id->empty() && std::find(ids.begin(), ids.end(), *id) == ids.end()) ids.push_back(*id);
    }
  });
  return ids;
}

bool isPressable(const View& view, std::string_view wanted) {
  bool found = false;
  forEachRecord(view, [&](const ViewType& type, const void* record) {
    for (const char* member : pressedMembers) {
      const std::string* id = found || wanted.empty() ? nullptr : textOf(type, record, member);
      found |= id && *id == wanted;
    }
  });
  return found;
}

}  // namespace backbeat
