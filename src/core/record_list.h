// A list of records that knows which of its parts changed. It is read like a const vector and changed only through its
// own operations; they mark the chunks that have to be written, and nothing else is.
#pragma once

#include <algorithm>
#include <cstdint>
#include <numeric>
#include <span>
#include <unordered_map>
#include <utility>
#include <vector>

namespace backbeat {

/// How a list is cut for storage.
struct ListLayout {
  uint32_t chunkSize = 128;  ///< records a chunk: 128 for lists that grow, 8 for lists edited in place
  enum class Order { back, front, slots } order = Order::back;
  ///< back: chunks count from the start. front: the list grows at its head, chunks count from the end.
  ///< slots: the list is sorted in place; each record keeps a stable slot, and the order is a row of its own.
};

/// Specialised for record types whose rows are looked up by an id in a long list.
template <class T>
inline constexpr int64_t T::*historyKeyOf = nullptr;

template <class T>
class RecordList {
 public:
  RecordList() = default;
  explicit RecordList(ListLayout layout) : layout_(layout) {}
  RecordList(const RecordList&) = default;
  RecordList(RecordList&&) = default;
  ~RecordList() = default;
  /// Takes the records; the layout stays. Every chunk counts as changed: what was here before may be what is stored.
  RecordList& operator=(RecordList other) {
    assign(std::move(other.records_));
    return *this;
  }

  const ListLayout& layout() const { return layout_; }
  size_t size() const { return records_.size(); }
  bool empty() const { return records_.empty(); }
  const T& operator[](size_t i) const { return records_[i]; }
  const T& back() const { return records_.back(); }
  auto begin() const { return records_.begin(); }
  auto end() const { return records_.end(); }
  const std::vector<T>& all() const { return records_; }

  /// Position of the first record that `matches`, or `size()`.
  template <class Match>
  size_t find(Match&& matches) const {
    return static_cast<size_t>(std::find_if(begin(), end(), matches) - begin());
  }

  /// Positions of the records whose history key is `id`, in list order. Good until records come, go or move, and until
  /// the next call.
  std::span<const uint32_t> historyOf(int64_t id) const {
    const auto found = history_.find(id);
    if (found == history_.end()) return {};
    if (layout_.order != ListLayout::Order::slots) return found->second;
    found_.clear();
    for (const uint32_t slot : found->second) found_.push_back(static_cast<uint32_t>(positionOfPlace(slot)));
    std::sort(found_.begin(), found_.end());
    return found_;
  }

  void append(T record) {
    if constexpr (historyKeyOf<T> != nullptr) {
      history_[record.*historyKeyOf<T>].push_back(static_cast<uint32_t>(records_.size()));
    }
    records_.push_back(std::move(record));
    if (layout_.order == ListLayout::Order::slots) {
      slots_.push_back(static_cast<uint32_t>(records_.size() - 1));
      orderChanged_ = true;
    }
    if (layout_.order == ListLayout::Order::front) {
      markAll();
    } else {
      markRecord(records_.size() - 1);
    }
  }

  void insertFront(T record) {
    records_.insert(records_.begin(), std::move(record));
    if (layout_.order == ListLayout::Order::slots) {
      slots_.insert(slots_.begin(), static_cast<uint32_t>(records_.size() - 1));
      orderChanged_ = true;
    }
    if (layout_.order == ListLayout::Order::back) {
      markAll();
    } else {
      markRecord(0);
    }
    rebuildHistory();
  }

  /// Changes the record at `i` in place: `change(T&)`.
  template <class Change>
  void update(size_t i, Change&& change) {
    if constexpr (historyKeyOf<T> != nullptr) {
      const int64_t before = records_[i].*historyKeyOf<T>;
      change(records_[i]);
      if (records_[i].*historyKeyOf<T> != before) rebuildHistory();
    } else {
      change(records_[i]);
    }
    markRecord(i);
  }

  void erase(size_t i) {
    eraseIf([&, at = size_t{0}](const T&) mutable { return at++ == i; });
  }

  /// Removes every record that `matches`; what remains keeps its order. Returns how many went.
  template <class Match>
  size_t eraseIf(Match matches) {
    const size_t before = records_.size();
    size_t kept = 0;
    size_t firstGone = before;
    size_t lastGone = 0;
    std::vector<uint32_t> freeSlots;
    for (size_t i = 0; i < before; ++i) {
      if (matches(std::as_const(records_[i]))) {
        firstGone = std::min(firstGone, i);
        lastGone = i;
        if (!slots_.empty()) freeSlots.push_back(slots_[i]);
        continue;
      }
      if (kept != i) {
        records_[kept] = std::move(records_[i]);
        if (!slots_.empty()) slots_[kept] = slots_[i];
      }
      ++kept;
    }
    if (kept == before) return 0;
    records_.resize(kept);
    if (!slots_.empty()) slots_.resize(kept);
    shrunk_ = true;
    switch (layout_.order) {
      case ListLayout::Order::back: markPlacesFrom(firstGone); break;
      case ListLayout::Order::front: markPlacesFrom(before - 1 - lastGone); break;
      case ListLayout::Order::slots: closeSlots(freeSlots); break;
    }
    rebuildHistory();
    return before - kept;
  }

  void clear() { assign({}); }

  /// Replaces the whole list, as after loading or restart; every chunk counts as changed.
  void assign(std::vector<T> records) {
    records_ = std::move(records);
    slots_.resize(layout_.order == ListLayout::Order::slots ? records_.size() : 0);
    std::iota(slots_.begin(), slots_.end(), 0u);
    rebuildHistory();
    forgetChanges();
    markAll();
  }

  /// Stable sort by `key`, greatest first, in place. Quick when few records are out of order, however long the list.
  template <class Key>
  void sortDescending(Key&& key) {
    using Entry = std::pair<std::decay_t<decltype(key(records_[0]))>, uint32_t>;
    std::vector<Entry> order(records_.size());
    for (uint32_t i = 0; i < order.size(); ++i) order[i] = {key(records_[i]), i};
    const auto greater = [](const Entry& a, const Entry& b) { return a.first > b.first; };
    if (std::is_sorted(order.begin(), order.end(), greater)) return;
    sortMostlySorted(order);
    for (uint32_t i = 0; i < order.size(); ++i) moveCycle(order, i);
    if (layout_.order == ListLayout::Order::slots) {
      orderChanged_ = true;
    } else {
      rebuildHistory();
    }
  }

  // For the save file only: what is stored how.

  /// How many chunks the list takes.
  uint32_t chunkCount() const {
    return static_cast<uint32_t>((records_.size() + layout_.chunkSize - 1) / layout_.chunkSize);
  }
  /// The records of chunk `number`, below `chunkCount()` or 0, in the order in which they are stored.
  std::vector<const T*> chunk(uint32_t number) const {
    std::vector<const T*> result;
    const size_t first = size_t{number} * layout_.chunkSize;
    const size_t last = std::min(first + layout_.chunkSize, records_.size());
    result.reserve(last - first);
    for (size_t place = first; place < last; ++place) result.push_back(&records_[positionOfPlace(place)]);
    return result;
  }
  /// The slot of each record in list order; empty unless the layout is `slots`.
  const std::vector<uint32_t>& slots() const { return slots_; }
  /// Takes a list as it was stored: places in their order, and for `slots` the slot of each position. False, and the
  /// list is empty, when `slots` is no permutation.
  bool restore(std::vector<T> places, std::vector<uint32_t> slots) {
    clear();
    if (layout_.order == ListLayout::Order::slots) {
      if (!isPermutation(slots, places.size())) return false;
      records_.reserve(places.size());
      for (const uint32_t slot : slots) records_.push_back(std::move(places[slot]));
      slots_ = std::move(slots);
    } else {
      if (layout_.order == ListLayout::Order::front) std::reverse(places.begin(), places.end());
      records_ = std::move(places);
    }
    rebuildHistory();
    forgetChanges();
    return true;
  }
  /// Each once, in no order; some may lie past the last chunk, when the list got shorter.
  const std::vector<uint32_t>& changedChunks() const { return changed_; }
  bool orderChanged() const { return orderChanged_; }
  bool shrunk() const { return shrunk_; }
  void forgetChanges() {
    for (const uint32_t number : changed_) isChanged_[number] = false;
    changed_.clear();
    orderChanged_ = false;
    shrunk_ = false;
  }
  void markAll() {
    for (uint32_t number = 0; number < chunkCount(); ++number) mark(number);
    orderChanged_ = layout_.order == ListLayout::Order::slots;
    shrunk_ = true;
  }

  friend bool operator==(const RecordList& a, const RecordList& b) { return a.records_ == b.records_; }

 private:
  size_t positionOfPlace(size_t place) const {
    switch (layout_.order) {
      case ListLayout::Order::back: return place;
      case ListLayout::Order::front: return records_.size() - 1 - place;
      case ListLayout::Order::slots: break;
    }
    if (places_.size() != slots_.size() || places_[place] >= slots_.size() || slots_[places_[place]] != place) {
      rebuildPlaces();
    }
    return places_[place];
  }
  void rebuildPlaces() const {
    places_.resize(slots_.size());
    for (uint32_t i = 0; i < slots_.size(); ++i) places_[slots_[i]] = i;
  }
  void markRecord(size_t i) {
    switch (layout_.order) {
      case ListLayout::Order::back: mark(static_cast<uint32_t>(i / layout_.chunkSize)); break;
      case ListLayout::Order::front: mark(static_cast<uint32_t>((records_.size() - 1 - i) / layout_.chunkSize)); break;
      case ListLayout::Order::slots: mark(slots_[i] / layout_.chunkSize); break;
    }
  }
  void mark(uint32_t number) {
    if (number >= isChanged_.size()) isChanged_.resize(number + 1);
    if (isChanged_[number]) return;
    isChanged_[number] = true;
    changed_.push_back(number);
  }
  void markPlacesFrom(size_t first) {
    for (uint32_t number = static_cast<uint32_t>(first / layout_.chunkSize); number < chunkCount(); ++number) {
      mark(number);
    }
  }
  // After records went: those whose slots lie beyond the shorter list move into the slots that came free.
  void closeSlots(const std::vector<uint32_t>& freeSlots) {
    for (const uint32_t slot : freeSlots) mark(slot / layout_.chunkSize);
    auto next = freeSlots.begin();
    for (uint32_t& slot : slots_) {
      if (slot < slots_.size()) continue;
      mark(slot / layout_.chunkSize);
      while (*next >= slots_.size()) ++next;
      slot = *next++;
    }
    orderChanged_ = true;
  }
  static bool isPermutation(const std::vector<uint32_t>& slots, size_t size) {
    std::vector<bool> seen(size);
    for (const uint32_t slot : slots) {
      if (slot >= size || seen[slot]) return false;
      seen[slot] = true;
    }
    return slots.size() == size;
  }
  // Entries (key, position), greatest key first and equal ones by position. Takes out the few that break the order,
  // sorts those, and merges.
  template <class Entry>
  static void sortMostlySorted(std::vector<Entry>& order) {
    constexpr size_t patience = 8;
    std::vector<Entry> kept;
    std::vector<Entry> taken;
    kept.reserve(order.size());
    size_t takenInARow = 0;
    for (size_t i = 0; i < order.size();) {
      if (kept.empty() || !(order[i].first > kept.back().first)) {
        kept.push_back(order[i++]);
        takenInARow = 0;
      } else if (takenInARow < patience) {
        taken.push_back(order[i++]);
        ++takenInARow;
      } else {
        // It is the last one kept that does not fit, not the many behind it.
        i -= takenInARow;
        taken.resize(taken.size() - takenInARow);
        taken.push_back(kept.back());
        kept.pop_back();
        takenInARow = 0;
      }
    }
    const auto before = [](const Entry& a, const Entry& b) {
      return a.first != b.first ? a.first > b.first : a.second < b.second;
    };
    std::stable_sort(taken.begin(), taken.end(), before);
    std::merge(kept.begin(), kept.end(), taken.begin(), taken.end(), order.begin(), before);
  }
  // Brings the record that belongs at `start` there, the one that belongs at its place there, and so on around.
  template <class Entry>
  void moveCycle(std::vector<Entry>& order, uint32_t start) {
    if (order[start].second == start) return;
    T first = std::move(records_[start]);
    const uint32_t firstSlot = slots_.empty() ? 0 : slots_[start];
    uint32_t to = start;
    for (uint32_t from = order[to].second; from != start; from = order[to].second) {
      records_[to] = std::move(records_[from]);
      settle(order, to, slots_.empty() ? 0 : slots_[from]);
      to = from;
    }
    records_[to] = std::move(first);
    settle(order, to, firstSlot);
  }
  template <class Entry>
  void settle(std::vector<Entry>& order, uint32_t at, uint32_t slot) {
    order[at].second = at;
    if (!slots_.empty()) {
      slots_[at] = slot;
    } else {
      markRecord(at);
    }
  }
  // The index of a list with slots holds slots: they stay when the list is sorted.
  void rebuildHistory() {
    if constexpr (historyKeyOf<T> != nullptr) {
      history_.clear();
      for (uint32_t i = 0; i < records_.size(); ++i) {
        history_[records_[i].*historyKeyOf<T>].push_back(slots_.empty() ? i : slots_[i]);
      }
    }
  }

  ListLayout layout_;
  std::vector<T> records_;
  std::vector<uint32_t> slots_;           // slot of the record at each position
  mutable std::vector<uint32_t> places_;  // position of each slot, made when asked for
  std::unordered_map<int64_t, std::vector<uint32_t>> history_;
  mutable std::vector<uint32_t> found_;  // the last answer of historyOf
  std::vector<bool> isChanged_;
  std::vector<uint32_t> changed_;
  bool orderChanged_ = false;
  bool shrunk_ = false;
};

}  // namespace backbeat
