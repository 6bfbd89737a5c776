// A list of records that knows which of its parts changed. It is read like a const vector and changed only through its
// own operations; they mark the chunks that have to be written, and nothing else is. A record of a list with slots
// stays where it lies when the list is sorted: only the order moves.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
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
  class Iterator {
   public:
    using iterator_category = std::forward_iterator_tag;
    using value_type = T;
    using difference_type = std::ptrdiff_t;
    using pointer = const T*;
    using reference = const T&;

    Iterator() = default;
    /// Without slots the records lie in the order of the list.
    Iterator(const T* records, const uint32_t* slots, size_t position)
        : records_(records), slots_(slots), position_(position) {}

    size_t position() const { return position_; }
    const T& operator*() const { return records_[slots_ ? slots_[position_] : position_]; }
    const T* operator->() const { return &**this; }
    Iterator& operator++() {
      ++position_;
      return *this;
    }
    Iterator operator++(int) { return {records_, slots_, position_++}; }
    friend bool operator==(const Iterator& a, const Iterator& b) { return a.position_ == b.position_; }

   private:
    const T* records_ = nullptr;
    const uint32_t* slots_ = nullptr;
    size_t position_ = 0;
  };

  explicit RecordList(ListLayout layout = {}) : ChunkedList(layout) {}
  RecordList(const RecordList&) = default;
  RecordList(RecordList&&) = default;
  ~RecordList() = default;
  /// Takes the records; the layout stays. Every chunk counts as changed: what was here before may be what is stored.
  RecordList& operator=(RecordList other) {
    assign(std::move(other).inOrder());
    return *this;
  }

  size_t size() const override { return records_.size(); }
  bool empty() const { return records_.empty(); }
  const T& operator[](size_t i) const { return records_[indexOf(i)]; }
  const T& back() const { return (*this)[size() - 1]; }
  Iterator begin() const { return {records_.data(), hasSlots() ? slots_.data() : nullptr, 0}; }
  Iterator end() const { return {records_.data(), hasSlots() ? slots_.data() : nullptr, size()}; }

  /// The records from position `first` up to `last`; not of a list with slots.
  std::span<const T> stretch(size_t first, size_t last) const {
    return std::span(records_).subspan(first, last - first);
  }

  /// Position of the first record that `matches`, or `size()`.
  template <class Match>
  size_t find(Match&& matches) const {
    return std::find_if(begin(), end(), matches).position();
  }

  /// Positions of the records whose history key is `id`, in list order. Good until records come, go or move, and until
  /// the next call.
  std::span<const uint32_t> historyOf(int64_t id) const {
    const auto found = history_.find(id);
    if (found == history_.end()) return {};
    if (!hasSlots()) return found->second;
    found_.clear();
    for (const uint32_t slot : found->second) found_.push_back(static_cast<uint32_t>(positionOfSlot(slot)));
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
    records_.insert(hasSlots() ? records_.end() : records_.begin(), std::move(record));
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
    T& record = records_[indexOf(i)];
    if constexpr (historyKeyOf<T> != nullptr) {
      const int64_t before = record.*historyKeyOf<T>;
      change(record);
      if (record.*historyKeyOf<T> != before) rebuildHistory();
    } else {
      change(record);
    }
    markRecord(i);
  }

  void erase(size_t i) {
    eraseIf([&, at = size_t{0}](const T&) mutable { return at++ == i; });
  }

  /// Removes every record that `matches`; what remains keeps its order. Returns how many went.
  template <class Match>
  size_t eraseIf(Match matches) {
    const size_t before = size();
    if (hasSlots()) {
      eraseSlots(matches);
    } else {
      erasePlaces(matches);
    }
    if (size() != before) rebuildHistory();
    return before - size();
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
    std::vector<Entry> order(size());
    for (uint32_t i = 0; i < order.size(); ++i) order[i] = {key((*this)[i]), i};
    const auto greater = [](const Entry& a, const Entry& b) { return a.first > b.first; };
    if (std::is_sorted(order.begin(), order.end(), greater)) return;
    sortMostlySorted(order);
    if (hasSlots()) {
      std::vector<uint32_t> slots(slots_.size());
      for (size_t i = 0; i < slots.size(); ++i) slots[i] = slots_[order[i].second];
      slots_ = std::move(slots);
      markOrder();
    } else {
      std::vector<T> records;
      for (const Entry& entry : order) records.push_back(std::move(records_[entry.second]));
      assign(std::move(records));
    }
  }

  // For the save file only.

  const ValueType& type() const override { return typeOf<std::vector<T>>(); }
  void replaceWith(void* records) override { assign(std::move(*static_cast<std::vector<T>*>(records))); }
  bool holdsSame(const ChunkedList& other) const override { return *this == static_cast<const RecordList&>(other); }
  bool restore(void* stored, std::vector<uint32_t> slots) override {
    std::vector<T>& places = *static_cast<std::vector<T>*>(stored);
    clear();
    if (hasSlots()) {
      if (slots.empty()) return places.empty();
      for (size_t slot = slots.size(); slot < places.size(); ++slot) slots.push_back(static_cast<uint32_t>(slot));
      if (!isPermutation(slots, places.size())) return false;
      slots_ = std::move(slots);
    }
    if (layout().order == ListLayout::Order::front) std::reverse(places.begin(), places.end());
    records_ = std::move(places);
    rebuildHistory();
    forgetChanges();
    return true;
  }

  friend bool operator==(const RecordList& a, const RecordList& b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end());
  }

 private:
  const void* memory() const override { return records_.data(); }
  size_t indexOf(size_t position) const { return hasSlots() ? slots_[position] : position; }

  std::vector<T> inOrder() && {
    if (!hasSlots()) return std::move(records_);
    std::vector<T> result;
    result.reserve(size());
    for (const uint32_t slot : slots_) result.push_back(std::move(records_[slot]));
    return result;
  }

  template <class Match>
  void erasePlaces(Match& matches) {
    const size_t before = records_.size();
    size_t kept = 0;
    size_t firstGone = before;
    size_t lastGone = 0;
    for (size_t i = 0; i < before; ++i) {
      if (matches(std::as_const(records_[i]))) {
        firstGone = std::min(firstGone, i);
        lastGone = i;
        continue;
      }
      if (kept != i) records_[kept] = std::move(records_[i]);
      ++kept;
    }
    if (kept == before) return;
    records_.resize(kept);
    markGone(firstGone, lastGone, before);
  }

  template <class Match>
  void eraseSlots(Match& matches) {
    std::vector<uint32_t> kept;
    std::vector<uint32_t> freeSlots;
    for (const uint32_t slot : slots_) (matches(std::as_const(records_[slot])) ? freeSlots : kept).push_back(slot);
    if (freeSlots.empty()) return;
    slots_ = std::move(kept);
    for (const auto& [from, to] : closeSlots(freeSlots)) records_[to] = std::move(records_[from]);
    records_.resize(slots_.size());
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
  // The index of a list with slots holds slots: they stay when the list is sorted.
  void rebuildHistory() {
    if constexpr (historyKeyOf<T> != nullptr) {
      history_.clear();
      for (uint32_t i = 0; i < records_.size(); ++i) {
        history_[records_[i].*historyKeyOf<T>].push_back(i);
      }
    }
  }

  std::vector<T> records_;  // by slot where there are slots, else in list order
  std::unordered_map<int64_t, std::vector<uint32_t>> history_;
  mutable std::vector<uint32_t> found_;  // the last answer of historyOf
};

}  // namespace backbeat
