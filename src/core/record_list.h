// A list of records of one type, as rules see it. It is read like a const vector and changed only through its own
// operations; they mark the chunks that have to be written, and nothing else is. A record of a list with slots stays
// where it lies when the list is sorted: only the order moves. What does not depend on the type is in
// core/chunked_list.h, so that one more list costs little.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <span>
#include <type_traits>
#include <utility>
#include <vector>

#include "core/chunked_list.h"

namespace backbeat {

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

  explicit RecordList(ListLayout layout = {}) : ChunkedList(typeOf<T>(), layout) {}

  const T& operator[](size_t i) const { return first()[indexOf(i)]; }
  const T& back() const { return (*this)[size() - 1]; }
  Iterator begin() const { return {first(), hasSlots() ? slots().data() : nullptr, 0}; }
  Iterator end() const { return {first(), hasSlots() ? slots().data() : nullptr, size()}; }

  /// The records from position `from` up to `to`; not of a list with slots.
  std::span<const T> stretch(size_t from, size_t to) const { return {first() + from, to - from}; }

  /// Position of the first record that `matches`, or `size()`.
  template <class Match>
  size_t find(Match&& matches) const {
    return std::find_if(begin(), end(), matches).position();
  }

  void append(T record) { add(&record); }
  void insertFront(T record) { addFront(&record); }

  /// Changes the record at `i` in place: `change(T&)`.
  template <class Change>
  void update(size_t i, Change&& change) {
    const Keys before = keysAt(i);
    change(*static_cast<T*>(recordAt(i)));
    noteChange(i, before);
  }

  /// Lets those sleep of which a turn wants nothing any more; see `awake`.
  template <class Silent>
  void letSleep(Silent silent) {
    std::vector<uint32_t> still = awake();
    std::erase_if(still, [&](uint32_t position) { return silent((*this)[position]); });
    keepAwake(still);
  }

  /// Removes every record that `matches`; what remains keeps its order. Returns how many went.
  template <class Match>
  size_t eraseIf(Match matches) {
    std::vector<uint32_t> positions;
    for (auto record = begin(); record != end(); ++record) {
      if (matches(*record)) positions.push_back(static_cast<uint32_t>(record.position()));
    }
    const size_t count = positions.size();
    eraseAll(std::move(positions));
    return count;
  }

  using ChunkedList::assign;
  void assign(std::vector<T> records) {
    RecordBuffer taken(type());
    for (T& record : records) taken.insert(taken.size(), &record);
    ChunkedList::assign(std::move(taken));
  }

  /// Stable sort by a number of the records, greatest first, in place: `sortDescending(&Song::viralityScore)`.
  template <class Number>
  void sortDescending(Number T::*number) {
    static_assert(std::is_same_v<Number, int64_t> || std::is_same_v<Number, double>);
    if (!empty()) sortBy({value_type::bytesBetween(first(), &(first()->*number)), std::is_same_v<Number, double>});
  }

  friend bool operator==(const RecordList& a, const RecordList& b) { return a.holdsSame(b); }

 private:
  const T* first() const { return static_cast<const T*>(memory()); }
};

}  // namespace backbeat
