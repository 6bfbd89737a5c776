// Sorting what a screen shows or a rule ranks. Only the comparison is made anew for each kind of element: with the
// library's own, every use would bring a copy of the whole algorithm into the page's engine.
#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace backbeat {

/// Whether the element at position `a` comes before the one at `b`. `context` is what the caller gave.
using BeforeAt = bool (*)(const void* context, uint32_t a, uint32_t b);

/// The positions 0 to `count` - 1, less than 2^32, in the order of `before`, a strict weak one. Equals stay as they
/// stood.
std::vector<uint32_t> sortedPositions(size_t count, BeforeAt before, const void* context);

/// Sorts the items by `before(a, b)`, a strict weak order of two items. Equals stay as they stood.
template <typename Item, typename Before>
void sortStably(std::vector<Item>& items, const Before& before) {
  struct Context {
    const std::vector<Item>* items;
    const Before* before;
  };
  const Context context{.items = &items, .before = &before};
  const BeforeAt asks = [](const void* given, uint32_t a, uint32_t b) {
    const Context& each = *static_cast<const Context*>(given);
    return (*each.before)((*each.items)[a], (*each.items)[b]);
  };
  std::vector<Item> inOrder;
  inOrder.reserve(items.size());
  for (const uint32_t position : sortedPositions(items.size(), asks, &context)) {
    inOrder.push_back(std::move(items[position]));
  }
  items = std::move(inOrder);
}

}  // namespace backbeat
