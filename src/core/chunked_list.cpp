#include "core/chunked_list.h"

#include <algorithm>

namespace backbeat {

using Order = ListLayout::Order;

uint32_t ChunkedList::chunkCount() const {
  return static_cast<uint32_t>((size() + layout_.chunkSize - 1) / layout_.chunkSize);
}

std::vector<const void*> ChunkedList::records() const {
  const char* first = static_cast<const char*>(memory());
  const size_t itemSize = type().item->size;
  std::vector<const void*> result(size());
  for (size_t i = 0; i < result.size(); ++i) result[i] = first + (hasSlots() ? slots_[i] : i) * itemSize;
  return result;
}

std::vector<const void*> ChunkedList::chunk(uint32_t number) const {
  const char* items = static_cast<const char*>(memory());
  const size_t itemSize = type().item->size;
  const size_t first = size_t{number} * layout_.chunkSize;
  const size_t last = std::min(first + layout_.chunkSize, size());
  const bool backwards = layout_.order == Order::front;
  std::vector<const void*> result;
  result.reserve(last - first);
  for (size_t place = first; place < last; ++place) {
    result.push_back(items + (backwards ? size() - 1 - place : place) * itemSize);
  }
  return result;
}

void ChunkedList::forgetChanges() {
  for (const uint32_t number : changed_) isChanged_[number] = false;
  changed_.clear();
  orderChanged_ = false;
  shrunk_ = false;
}

void ChunkedList::markAll() {
  for (uint32_t number = 0; number < chunkCount(); ++number) mark(number);
  orderChanged_ = hasSlots();
  shrunk_ = true;
}

size_t ChunkedList::positionOfSlot(uint32_t slot) const {
  const bool known =
      positions_.size() == slots_.size() && positions_[slot] < slots_.size() && slots_[positions_[slot]] == slot;
  if (!known) {
    positions_.resize(slots_.size());
    for (uint32_t i = 0; i < slots_.size(); ++i) positions_[slots_[i]] = i;
  }
  return positions_[slot];
}

void ChunkedList::mark(uint32_t number) {
  if (number >= isChanged_.size()) isChanged_.resize(number + 1);
  if (isChanged_[number]) return;
  isChanged_[number] = true;
  changed_.push_back(number);
}

void ChunkedList::markRecord(size_t position) {
  switch (layout_.order) {
    case Order::back: return mark(static_cast<uint32_t>(position / layout_.chunkSize));
    case Order::front: return mark(static_cast<uint32_t>((size() - 1 - position) / layout_.chunkSize));
    case Order::slots: return mark(slots_[position] / layout_.chunkSize);
  }
}

void ChunkedList::markGone(size_t first, size_t last, size_t before) {
  shrunk_ = true;
  markPlacesFrom(layout_.order == Order::front ? before - 1 - last : first);
}

void ChunkedList::markPlacesFrom(size_t first) {
  for (uint32_t number = static_cast<uint32_t>(first / layout_.chunkSize); number < chunkCount(); ++number) {
    mark(number);
  }
}

std::vector<std::pair<uint32_t, uint32_t>> ChunkedList::closeSlots(const std::vector<uint32_t>& freeSlots) {
  std::vector<std::pair<uint32_t, uint32_t>> moves;
  for (const uint32_t slot : freeSlots) mark(slot / layout_.chunkSize);
  auto next = freeSlots.begin();
  for (uint32_t& slot : slots_) {
    if (slot < slots_.size()) continue;
    mark(slot / layout_.chunkSize);
    while (*next >= slots_.size()) ++next;
    moves.emplace_back(slot, *next);
    slot = *next++;
  }
  shrunk_ = true;
  orderChanged_ = true;
  return moves;
}

bool ChunkedList::isPermutation(const std::vector<uint32_t>& slots, size_t size) {
  std::vector<bool> seen(size);
  for (const uint32_t slot : slots) {
    if (slot >= size || seen[slot]) return false;
    seen[slot] = true;
  }
  return slots.size() == size;
}

}  // namespace backbeat
