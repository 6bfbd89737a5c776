#include "core/chunked_list.h"

#include <algorithm>
#include <bit>
#include <limits>
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

/// What a list is sorted by: a number of a record, and where it stands.
struct SortEntry {
  int64_t key;
  uint32_t position;
};

/// A whole number that orders like the number; both zeros are one.
int64_t orderOf(double number) {
  const auto bits = std::bit_cast<int64_t>(number + 0.0);
  return bits < 0 ? bits ^ std::numeric_limits<int64_t>::max() : bits;
}

bool before(const SortEntry& a, const SortEntry& b) { return a.key != b.key ? a.key > b.key : a.position < b.position; }

/// Takes the few entries that break the order out of `order`, which closes up behind them: keys fall, and equal ones
/// stand by position.
std::vector<SortEntry> takeMisfits(std::vector<SortEntry>& order) {
  constexpr size_t patience = 8;
  const auto rises = [](const SortEntry& last, const SortEntry& next) { return next.key > last.key; };
  const auto firstRise = std::adjacent_find(order.begin(), order.end(), rises);
  if (firstRise == order.end()) return {};
  std::vector<SortEntry> misfits;
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
template <class Entry, class Before>
void mergeInto(std::vector<Entry>& order, const std::vector<Entry>& few, const Before& isBefore) {
  auto end = order.insert(order.end(), few.begin(), few.end());
  auto free = order.end();
  for (auto next = few.rbegin(); next != few.rend(); ++next) {
    const auto place = std::upper_bound(order.begin(), end, *next, isBefore);
    free = std::move_backward(place, end, free);
    *--free = *next;
    end = place;
  }
}

std::vector<uint32_t> positionsOf(const std::vector<SortEntry>& order) {
  std::vector<uint32_t> positions(order.size());
  std::transform(order.begin(), order.end(), positions.begin(), [](const SortEntry& entry) { return entry.position; });
  return positions;
}

/// A record got another key.
template <class Index>
void moveIn(Index& index, uint32_t record, int64_t from, int64_t to) {
  std::erase(index[from], record);
  if (index[from].empty()) index.erase(from);
  auto& records = index[to];
  records.insert(std::upper_bound(records.begin(), records.end(), record), record);
}

/// Takes out what stands at these positions, which ascend.
void eraseAt(std::vector<uint32_t>& order, const std::vector<uint32_t>& positions) {
  if (positions.empty()) return;
  auto kept = order.begin() + positions.front();
  for (size_t i = 0; i < positions.size(); ++i) {
    const auto next = i + 1 < positions.size() ? order.begin() + positions[i + 1] : order.end();
    kept = std::move(order.begin() + positions[i] + 1, next, kept);
  }
  order.erase(kept, order.end());
}

}  // namespace

ChunkedList& ChunkedList::operator=(ChunkedList other) {
  if (hasSlots() && other.hasSlots()) {
    records_ = std::move(other.records_);
    slots_ = std::move(other.slots_);
    rebuildIndexes();
    forgetOrderAndSleep();
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

std::span<const uint32_t> ChunkedList::found(const Index& index, int64_t id) const {
  const auto known = index.find(id);
  if (known == index.end()) return {};
  if (!hasSlots()) return known->second;
  found_.clear();
  for (const uint32_t slot : known->second) found_.push_back(static_cast<uint32_t>(positionOfSlot(slot)));
  std::sort(found_.begin(), found_.end());
  return found_;
}

std::vector<uint32_t> ChunkedList::awake() const {
  std::vector<uint32_t> positions(awake_ ? 0 : size());
  std::iota(positions.begin(), positions.end(), 0u);
  if (!awake_) return positions;
  // Put in order by marking, a bit a record: quicker than comparing, and asked for many times a turn.
  std::vector<uint64_t> marks(size() / 64 + 1);
  for (const uint32_t index : awake_->all()) {
    const size_t position = hasSlots() ? positionOfSlot(index) : index;
    marks[position / 64] |= uint64_t{1} << position % 64;
  }
  positions.reserve(awake_->all().size());
  for (size_t word = 0; word < marks.size(); ++word) {
    for (uint64_t rest = marks[word]; rest != 0; rest &= rest - 1) {
      positions.push_back(static_cast<uint32_t>(word * 64 + static_cast<size_t>(std::countr_zero(rest))));
    }
  }
  return positions;
}

void ChunkedList::keepAwake(std::span<const uint32_t> positions) {
  awake_.emplace();
  for (const uint32_t position : positions) awake_->add(static_cast<uint32_t>(indexOf(position)));
}

void ChunkedList::clear() { assign(RecordBuffer(type())); }

void ChunkedList::assign(RecordBuffer records) {
  records_ = std::move(records);
  slots_.resize(hasSlots() ? size() : 0);
  std::iota(slots_.begin(), slots_.end(), 0u);
  rebuildIndexes();
  forgetOrderAndSleep();
  forgetChanges();
  markAll();
}

void ChunkedList::add(void* record) {
  const auto index = static_cast<uint32_t>(size());
  records_.insert(index, record);
  noteNew(index);
  if (hasSlots()) {
    slots_.push_back(index);
    if (positions_.size() == index) positions_.push_back(index);
    // Behind the stored order stands what came since; only the first record needs one.
    if (index == 0) orderChanged_ = true;
  }
  layout_.order == Order::front ? markAll() : markRecord(index);
}

void ChunkedList::addFront(void* record) {
  records_.insert(hasSlots() ? size() : 0, record);
  if (hasSlots()) {
    const auto index = static_cast<uint32_t>(size() - 1);
    slots_.insert(slots_.begin(), index);
    orderChanged_ = true;
    noteNew(index);
    ++rewrites_;
  } else {
    rebuildIndexes();
    forgetOrderAndSleep();
  }
  layout_.order == Order::back ? markAll() : markRecord(0);
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
  rebuildIndexes();
  forgetOrderAndSleep();
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
  for (const uint32_t slot : freeSlots) changed_.add(slot / layout_.chunkSize);
  auto next = freeSlots.begin();
  for (uint32_t& slot : slots_) {
    if (slot < slots_.size()) continue;
    changed_.add(slot / layout_.chunkSize);
    while (*next >= slots_.size()) ++next;
    moves.emplace_back(slot, *next);
    slot = *next++;
  }
  shrunk_ = true;
  orderChanged_ = true;
  return moves;
}

void ChunkedList::sortBy(SortKey key) {
  if (key != sortedBy_) {
    sortedBy_ = {};
    unsorted_.clear();
  }
  const std::vector<uint32_t> order = key == sortedBy_ ? orderOfChanged(key) : wholeOrder(key);
  if (!std::is_sorted(order.begin(), order.end())) reorder(order);
  if (hasSlots()) sortedBy_ = key;
  unsorted_.clear();
}

// Quick when few records are out of order, however long the list.
std::vector<uint32_t> ChunkedList::wholeOrder(SortKey key) const {
  std::vector<SortEntry> order(size());
  for (uint32_t i = 0; i < order.size(); ++i) order[i] = {keyAt(key, indexOf(i)), i};
  std::vector<SortEntry> misfits = takeMisfits(order);
  std::sort(misfits.begin(), misfits.end(), before);
  mergeInto(order, misfits, before);
  return positionsOf(order);
}

// Takes the changed records out of the order, and puts each back in its place.
std::vector<uint32_t> ChunkedList::orderOfChanged(SortKey key) const {
  std::vector<uint32_t> changed;
  for (const uint32_t slot : unsorted_.all()) changed.push_back(static_cast<uint32_t>(positionOfSlot(slot)));
  std::sort(changed.begin(), changed.end());
  std::vector<uint32_t> order(size());
  std::iota(order.begin(), order.end(), 0u);
  eraseAt(order, changed);
  const auto entry = [&](uint32_t i) { return SortEntry{keyAt(key, slots_[i]), i}; };
  std::vector<SortEntry> misfits(changed.size());
  std::transform(changed.begin(), changed.end(), misfits.begin(), entry);
  std::sort(misfits.begin(), misfits.end(), before);
  mergeInto(order, positionsOf(misfits), [&](uint32_t a, uint32_t b) { return before(entry(a), entry(b)); });
  return order;
}

void ChunkedList::reorder(const std::vector<uint32_t>& order) {
  std::vector<uint32_t> moved(order.size());
  for (size_t i = 0; i < moved.size(); ++i) moved[i] = static_cast<uint32_t>(indexOf(order[i]));
  ++rewrites_;
  if (hasSlots()) {
    slots_ = std::move(moved);
    orderChanged_ = true;
  } else {
    records_.reorder(moved);
    rebuildIndexes();
    forgetOrderAndSleep();
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
    places.reorder(backwards, places.size() / 8);  // as at the end of other lists that are loaded
  }
  records_ = std::move(places);
  rebuildIndexes();
  forgetOrderAndSleep();
  forgetChanges();
  return true;
}

void ChunkedList::forgetChanges() {
  changed_.clear();
  orderChanged_ = false;
  shrunk_ = false;
}

void ChunkedList::markAll() {
  for (uint32_t number = 0; number < chunkCount(); ++number) changed_.add(number);
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

void ChunkedList::markRecord(size_t position) {
  switch (layout_.order) {
    case Order::back: return changed_.add(static_cast<uint32_t>(position / layout_.chunkSize));
    case Order::front: return changed_.add(static_cast<uint32_t>((size() - 1 - position) / layout_.chunkSize));
    case Order::slots: return changed_.add(slots_[position] / layout_.chunkSize);
  }
}

// After records went from between positions `first` and `last` of `before` records; not with slots.
void ChunkedList::markGone(size_t first, size_t last, size_t before) {
  shrunk_ = true;
  const size_t firstPlace = layout_.order == Order::front ? before - 1 - last : first;
  for (auto number = static_cast<uint32_t>(firstPlace / layout_.chunkSize); number < chunkCount(); ++number) {
    changed_.add(number);
  }
}

template <class Number>
Number ChunkedList::numberAt(size_t offset, size_t index) const {
  return *reinterpret_cast<const Number*>(static_cast<const char*>(records_.recordAt(index)) + offset);
}

int64_t ChunkedList::keyAt(SortKey key, size_t index) const {
  return key.isReal ? orderOf(numberAt<double>(key.offset, index)) : numberAt<int64_t>(key.offset, index);
}

ChunkedList::Keys ChunkedList::keysAt(size_t position) const {
  Keys keys;
  if (type().historyKey != noKey) keys.history = numberAt<int64_t>(type().historyKey, indexOf(position));
  if (type().groupKey != noKey) keys.group = numberAt<int64_t>(type().groupKey, indexOf(position));
  return keys;
}

// A new record at `index`, the last of the buffer.
void ChunkedList::noteNew(size_t index) {
  const auto number = static_cast<uint32_t>(index);
  if (type().historyKey != noKey) history_[numberAt<int64_t>(type().historyKey, index)].push_back(number);
  if (type().groupKey != noKey) groups_[numberAt<int64_t>(type().groupKey, index)].push_back(number);
  if (awake_) awake_->add(number);
  if (sortedBy_.offset != noKey) unsorted_.add(number);
}

void ChunkedList::noteChange(size_t position, Keys before) {
  const auto index = static_cast<uint32_t>(indexOf(position));
  const Keys keys = keysAt(position);
  if (keys.history != before.history) moveIn(history_, index, before.history, keys.history);
  if (keys.group != before.group) moveIn(groups_, index, before.group, keys.group);
  if (awake_) awake_->add(index);
  if (sortedBy_.offset != noKey) unsorted_.add(index);
  ++rewrites_;
  markRecord(position);
}

// When the records got other indices.
void ChunkedList::forgetOrderAndSleep() {
  awake_.reset();
  sortedBy_ = {};
  unsorted_.clear();
  ++rewrites_;
}

// The indexes of a list with slots hold slots: they stay when the list is sorted.
void ChunkedList::rebuildIndexes() {
  const auto rebuild = [&](Index& index, size_t key) {
    if (key == noKey) return;
    index.clear();
    // Counted first, so that each takes what it needs: most of them have come to their end.
    std::unordered_map<int64_t, uint32_t, AsItIs> counts;
    for (uint32_t i = 0; i < size(); ++i) ++counts[numberAt<int64_t>(key, i)];
    index.reserve(counts.size());
    for (const auto& [id, count] : counts) index[id].reserve(count);
    for (uint32_t i = 0; i < size(); ++i) index[numberAt<int64_t>(key, i)].push_back(i);
  };
  rebuild(history_, type().historyKey);
  rebuild(groups_, type().groupKey);
}

}  // namespace backbeat
