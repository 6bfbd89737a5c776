#include "core/chunked_list.h"

#include <algorithm>
#include <numeric>

namespace backbeat {
namespace {

using Order = ListLayout::Order;

bool isPermutation(const std::vector<uint32_t>& slots, size_t size) {
  std::vector<bool> seen(size);
  for (const uint32_t slot : slots) {
    if (slot >= size || seen[slot]) return false;
    seen[slot] = true;
  }
  return slots.size() == size;
}

template <class Entry>
bool before(const Entry& a, const Entry& b) {
  return a.key != b.key ? a.key > b.key : a.position < b.position;
}

/// Takes the few entries that break the order out of `order`, which closes up behind them: keys fall, and equal ones
/// stand by position.
template <class Entry>
std::vector<Entry> takeMisfits(std::vector<Entry>& order) {
  constexpr size_t patience = 8;
  const auto rises = [](const Entry& last, const Entry& next) { return next.key > last.key; };
  const auto firstRise = std::adjacent_find(order.begin(), order.end(), rises);
  if (firstRise == order.end()) return {};
  std::vector<Entry> misfits;
  size_t kept = static_cast<size_t>(firstRise - order.begin()) + 1;
  size_t misfitsInARow = 0;
  for (size_t i = kept; i < order.size();) {
    if (kept == 0 || !rises(order[kept - 1], order[i])) {
      order[kept++] = order[i++];
      misfitsInARow = 0;
    } else if (misfitsInARow < patience) {
      misfits.push_back(order[i++]);
      ++misfitsInARow;
    } else {
      // It is the last one kept that does not fit, not the many behind it, which still lie where they lay.
      i -= misfitsInARow;
      misfits.resize(misfits.size() - misfitsInARow);
      misfits.push_back(order[--kept]);
      misfitsInARow = 0;
    }
  }
  order.resize(kept);
  return misfits;
}

/// Merges the second of two sorted ranges into the first. What stands behind each of the few moves up in one block.
template <class Entry>
void mergeInto(std::vector<Entry>& order, const std::vector<Entry>& few) {
  auto end = order.insert(order.end(), few.begin(), few.end());
  auto free = order.end();
  for (auto next = few.rbegin(); next != few.rend(); ++next) {
    const auto place = std::upper_bound(order.begin(), end, *next, before<Entry>);
    free = std::move_backward(place, end, free);
    *--free = *next;
    end = place;
  }
}

}  // namespace

ChunkedList& ChunkedList::operator=(ChunkedList other) {
  if (hasSlots() && other.hasSlots()) {
    records_ = std::move(other.records_);
    slots_ = std::move(other.slots_);
    rebuildHistory();
    forgetChanges();
    markAll();
    return *this;
  }
  if (other.hasSlots()) other.records_.reorder(other.slots_);
  assign(std::move(other.records_));
  return *this;
}

std::vector<const void*> ChunkedList::records() const {
  std::vector<const void*> result(size());
  for (size_t i = 0; i < result.size(); ++i) result[i] = records_.recordAt(indexOf(i));
  return result;
}

bool ChunkedList::holdsSame(const ChunkedList& other) const {
  if (size() != other.size()) return false;
  for (size_t i = 0; i < size(); ++i) {
    if (!sameValue(type(), records_.recordAt(indexOf(i)), other.records_.recordAt(other.indexOf(i)))) return false;
  }
  return true;
}

std::span<const uint32_t> ChunkedList::historyOf(int64_t id) const {
  const auto found = history_.find(id);
  if (found == history_.end()) return {};
  if (!hasSlots()) return found->second;
  found_.clear();
  for (const uint32_t slot : found->second) found_.push_back(static_cast<uint32_t>(positionOfSlot(slot)));
  std::sort(found_.begin(), found_.end());
  return found_;
}

void ChunkedList::clear() { assign(RecordBuffer(type())); }

void ChunkedList::assign(RecordBuffer records) {
  records_ = std::move(records);
  slots_.resize(hasSlots() ? size() : 0);
  std::iota(slots_.begin(), slots_.end(), 0u);
  rebuildHistory();
  forgetChanges();
  markAll();
}

void ChunkedList::add(void* record) {
  const auto index = static_cast<uint32_t>(size());
  records_.insert(index, record);
  if (hasHistory()) history_[historyKeyAt(index)].push_back(index);
  if (hasSlots()) {
    slots_.push_back(index);
    // Behind the stored order stands what came since; only the first record needs one.
    if (index == 0) orderChanged_ = true;
  }
  layout_.order == Order::front ? markAll() : markRecord(index);
}

void ChunkedList::addFront(void* record) {
  records_.insert(hasSlots() ? size() : 0, record);
  if (hasSlots()) {
    slots_.insert(slots_.begin(), static_cast<uint32_t>(size() - 1));
    orderChanged_ = true;
  }
  layout_.order == Order::back ? markAll() : markRecord(0);
  rebuildHistory();
}

void ChunkedList::eraseAll(std::vector<uint32_t> positions) {
  if (positions.empty()) return;
  const size_t before = size();
  if (hasSlots()) {
    eraseSlots(positions);
  } else {
    records_.erase(positions);
    markGone(positions.front(), positions.back(), before);
  }
  rebuildHistory();
}

void ChunkedList::eraseSlots(const std::vector<uint32_t>& positions) {
  std::vector<uint32_t> freeSlots;
  std::vector<uint32_t> kept;
  auto gone = positions.begin();
  for (uint32_t i = 0; i < slots_.size(); ++i) {
    const bool goes = gone != positions.end() && *gone == i;
    if (goes) ++gone;
    (goes ? freeSlots : kept).push_back(slots_[i]);
  }
  slots_ = std::move(kept);
  for (const auto& [from, to] : closeSlots(freeSlots)) records_.move(to, from);
  records_.shrink(slots_.size());
}

// After records went whose slots were `freeSlots`: those in slots beyond the shorter list get the free ones. Tells who
// moves, from slot to slot.
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

void ChunkedList::sortBy(std::vector<SortEntry<int64_t>> order) { sortByKeys(std::move(order)); }
void ChunkedList::sortBy(std::vector<SortEntry<double>> order) { sortByKeys(std::move(order)); }

template <class Key>
void ChunkedList::sortByKeys(std::vector<SortEntry<Key>> order) {
  std::vector<SortEntry<Key>> misfits = takeMisfits(order);
  if (misfits.empty()) return;
  std::sort(misfits.begin(), misfits.end(), before<SortEntry<Key>>);
  mergeInto(order, misfits);
  std::vector<uint32_t> moved(order.size());
  for (size_t i = 0; i < moved.size(); ++i) moved[i] = static_cast<uint32_t>(indexOf(order[i].position));
  if (hasSlots()) {
    slots_ = std::move(moved);
    orderChanged_ = true;
  } else {
    records_.reorder(moved);
    rebuildHistory();
    markAll();
  }
}

uint32_t ChunkedList::chunkCount() const {
  return static_cast<uint32_t>((size() + layout_.chunkSize - 1) / layout_.chunkSize);
}

std::vector<const void*> ChunkedList::chunk(uint32_t number) const {
  const size_t first = size_t{number} * layout_.chunkSize;
  const size_t last = std::min(first + layout_.chunkSize, size());
  const bool backwards = layout_.order == Order::front;
  std::vector<const void*> result;
  result.reserve(last - first);
  for (size_t place = first; place < last; ++place) {
    result.push_back(records_.recordAt(backwards ? size() - 1 - place : place));
  }
  return result;
}

bool ChunkedList::restore(RecordBuffer places, std::vector<uint32_t> slots) {
  clear();
  if (hasSlots()) {
    if (slots.empty()) return places.size() == 0;
    for (size_t slot = slots.size(); slot < places.size(); ++slot) slots.push_back(static_cast<uint32_t>(slot));
    if (!isPermutation(slots, places.size())) return false;
    slots_ = std::move(slots);
  }
  if (layout_.order == Order::front) {
    std::vector<uint32_t> backwards(places.size());
    std::iota(backwards.rbegin(), backwards.rend(), 0u);
    places.reorder(backwards);
  }
  records_ = std::move(places);
  rebuildHistory();
  forgetChanges();
  return true;
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

// After records went from between positions `first` and `last` of `before` records; not with slots.
void ChunkedList::markGone(size_t first, size_t last, size_t before) {
  shrunk_ = true;
  const size_t firstPlace = layout_.order == Order::front ? before - 1 - last : first;
  for (auto number = static_cast<uint32_t>(firstPlace / layout_.chunkSize); number < chunkCount(); ++number) {
    mark(number);
  }
}

int64_t ChunkedList::historyKeyAt(size_t index) const {
  return *reinterpret_cast<const int64_t*>(static_cast<const char*>(records_.recordAt(index)) + type().historyKey);
}

// The index of a list with slots holds slots: they stay when the list is sorted.
void ChunkedList::rebuildHistory() {
  if (!hasHistory()) return;
  history_.clear();
  for (uint32_t i = 0; i < size(); ++i) history_[historyKeyAt(i)].push_back(i);
}

}  // namespace backbeat
