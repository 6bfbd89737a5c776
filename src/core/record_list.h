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

#include "core/chunked_list.h"

namespace backbeat {

/// Specialised for record types whose rows are looked up by an id in a long list.
template <class T>
inline constexpr int64_t T::*historyKeyOf = nullptr;

template <class T>
class RecordList final : public ChunkedList {
 public:
  explicit RecordList(ListLayout layout = {}) : ChunkedList(layout) {}
  RecordList(const RecordList&) = default;
  RecordList(RecordList&&) = default;
  ~RecordList() = default;
  /// Takes the records; the layout stays. Every chunk counts as changed: what was here before may be what is stored.
  RecordList& operator=(RecordList other) {
    assign(std::move(other.records_));
    return *this;
  }

  size_t size() const override { return records_.size(); }
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
    if (!hasSlots()) return found->second;
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
    if (hasSlots()) {
      slots_.push_back(static_cast<uint32_t>(records_.size() - 1));
      // Behind the stored order stands what came since; only the first record needs one.
      if (records_.size() == 1) markOrder();
    }
    if (layout().order == ListLayout::Order::front) {
      markAll();
    } else {
      markRecord(records_.size() - 1);
    }
  }

  void insertFront(T record) {
    records_.insert(records_.begin(), std::move(record));
    if (hasSlots()) {
      slots_.insert(slots_.begin(), static_cast<uint32_t>(records_.size() - 1));
      markOrder();
    }
    if (layout().order == ListLayout::Order::back) {
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
    markGone(firstGone, lastGone, before, freeSlots);
    rebuildHistory();
    return before - kept;
  }

  void clear() { assign({}); }

  /// Replaces the whole list, as after loading or restart; every chunk counts as changed.
  void assign(std::vector<T> records) {
    records_ = std::move(records);
    slots_.resize(hasSlots() ? records_.size() : 0);
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
    if (hasSlots()) {
      markOrder();
    } else {
      rebuildHistory();
    }
  }

  // For the save file only.

  const ValueType& type() const override { return typeOf<std::vector<T>>(); }
  const void* records() const override { return &records_; }
  void replaceWith(void* records) override { assign(std::move(*static_cast<std::vector<T>*>(records))); }
  bool holdsSame(const ChunkedList& other) const override { return *this == static_cast<const RecordList&>(other); }
  bool restore(void* stored, std::vector<uint32_t> slots) override {
    std::vector<T>& places = *static_cast<std::vector<T>*>(stored);
    clear();
    if (hasSlots()) {
      if (slots.empty()) return places.empty();
      for (size_t slot = slots.size(); slot < places.size(); ++slot) slots.push_back(static_cast<uint32_t>(slot));
      if (!isPermutation(slots, places.size())) return false;
      records_.reserve(places.size());
      for (const uint32_t slot : slots) records_.push_back(std::move(places[slot]));
      slots_ = std::move(slots);
    } else {
      if (layout().order == ListLayout::Order::front) std::reverse(places.begin(), places.end());
      records_ = std::move(places);
    }
    rebuildHistory();
    forgetChanges();
    return true;
  }

  friend bool operator==(const RecordList& a, const RecordList& b) { return a.records_ == b.records_; }

 private:
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

  std::vector<T> records_;
  std::unordered_map<int64_t, std::vector<uint32_t>> history_;
  mutable std::vector<uint32_t> found_;  // the last answer of historyOf
};

}  // namespace backbeat
