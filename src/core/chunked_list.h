// A list of records that knows which of its parts changed, whatever its records are: how it is cut into rows, which of
// them have to be written, and its records as data. Rules use core/record_list.h, which knows the type.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <unordered_map>
#include <utility>
#include <vector>

#include "core/record_buffer.h"

namespace backbeat {

/// How a list is cut for storage.
struct ListLayout {
  uint32_t chunkSize = 128;  ///< records a chunk: 128 for lists that grow, 8 for lists edited in place
  enum class Order { back, front, slots } order = Order::back;
  ///< back: chunks count from the start. front: the list grows at its head, chunks count from the end.
  ///< slots: the list is sorted in place; each record keeps a stable slot, and the order is a row of its own.
};

/// Hashes a number that is spread well enough as it is: an id, a fingerprint.
struct AsItIs {
  size_t operator()(auto number) const { return static_cast<size_t>(number); }
};

/// Whole numbers that came up, each once, in no order.
class NumberSet {
 public:
  const std::vector<uint32_t>& all() const { return numbers_; }
  void add(uint32_t number) {
    if (number >= isIn_.size()) isIn_.resize(number + 1);
    if (isIn_[number]) return;
    isIn_[number] = true;
    numbers_.push_back(number);
  }
  void clear() {
    for (const uint32_t number : numbers_) isIn_[number] = false;
    numbers_.clear();
  }

 private:
  std::vector<bool> isIn_;
  std::vector<uint32_t> numbers_;
};

class ChunkedList {
 public:
  ChunkedList(const ValueType& record, ListLayout layout) : layout_(layout), records_(record) {}
  ChunkedList(const ChunkedList&) = default;
  ChunkedList(ChunkedList&&) = default;
  /// Takes the records of a list of the same type; the layout stays. Every chunk counts as changed: what was here
  /// before may be what is stored.
  ChunkedList& operator=(ChunkedList other);
  ~ChunkedList() = default;

  const ListLayout& layout() const { return layout_; }
  /// The type of its records.
  const ValueType& type() const { return records_.type(); }

  size_t size() const { return records_.size(); }
  bool empty() const { return size() == 0; }
  /// The records, in the order of the list.
  std::vector<const void*> records() const;
  /// Whether `other`, a list of the same type, holds the same.
  bool holdsSame(const ChunkedList& other) const;

  /// Positions of the records whose history key is `id`, in list order. Good until records come, go or move, and until
  /// the next call.
  std::span<const uint32_t> historyOf(int64_t id) const { return found(history_, id); }
  /// The same for the records whose group key is `id`.
  std::span<const uint32_t> groupOf(int64_t id) const { return found(groups_, id); }

  /// Positions, ascending, of the records that are not asleep. A record is let sleep by a rule that knows that nothing
  /// of a turn moves or counts it any more; it wakes when it changes. Nobody sleeps in a list that was loaded or lost
  /// records, so that a rule has to ask of an awake one whatever it asked before.
  std::vector<uint32_t> awake() const;

  /// Grows with every change that is no append: while it stays, the first so many records are what they were.
  uint64_t rewrites() const { return rewrites_; }

  void erase(size_t position) { eraseAll({static_cast<uint32_t>(position)}); }
  void clear();

  /// Replaces the whole list; every chunk counts as changed.
  void assign(RecordBuffer records);

  // For the save file only.

  /// How many chunks the list takes.
  uint32_t chunkCount() const;
  /// The records of chunk `number`, below `chunkCount()` or 0, in the order in which they are stored.
  std::vector<const void*> chunk(uint32_t number) const;
  /// The slot of each record in list order; empty unless the layout is `slots`.
  const std::vector<uint32_t>& slots() const { return slots_; }
  /// Takes a list as it was stored: `places` in their order, and for `slots` the slot of each position; slots that are
  /// not named follow as they are. False, and the list is empty, when `slots` is no permutation or missing.
  bool restore(RecordBuffer places, std::vector<uint32_t> slots);

  /// Each once, in no order; some may lie past the last chunk, when the list got shorter.
  const std::vector<uint32_t>& changedChunks() const { return changed_.all(); }
  bool orderChanged() const { return orderChanged_; }
  bool shrunk() const { return shrunk_; }
  void forgetChanges();
  void markAll();

 protected:
  bool hasSlots() const { return layout_.order == ListLayout::Order::slots; }
  size_t indexOf(size_t position) const { return hasSlots() ? slots_[position] : position; }
  /// By slot where there are slots, else in list order.
  const void* memory() const { return records_.data(); }
  void* recordAt(size_t position) { return records_.recordAt(indexOf(position)); }

  /// One record more, made out of one that lies elsewhere.
  void add(void* record);
  void addFront(void* record);
  /// Removes the records at these positions, which ascend.
  void eraseAll(std::vector<uint32_t> positions);

  /// The numbers by which a record is found.
  struct Keys {
    int64_t history = 0;
    int64_t group = 0;
  };
  Keys keysAt(size_t position) const;
  /// After a record was changed in place that had those keys.
  void noteChange(size_t position, Keys before);

  /// Only these records, at positions that ascend, stay awake.
  void keepAwake(std::span<const uint32_t> positions);

  /// A number of the records, by the bytes from their beginning to it.
  struct SortKey {
    size_t offset = noKey;
    bool isReal = false;  ///< a double, else an int64_t
    friend bool operator==(const SortKey&, const SortKey&) = default;
  };
  /// Stable sort, greatest first. In a list with slots that was sorted so before, only what changed since is looked at.
  void sortBy(SortKey key);

 private:
  using Index = std::unordered_map<int64_t, std::vector<uint32_t>, AsItIs>;

  std::vector<uint32_t> wholeOrder(SortKey key) const;
  std::vector<uint32_t> orderOfChanged(SortKey key) const;
  int64_t keyAt(SortKey key, size_t index) const;
  void reorder(const std::vector<uint32_t>& order);
  template <class Number>
  Number numberAt(size_t offset, size_t index) const;

  std::span<const uint32_t> found(const Index& index, int64_t id) const;
  void rebuildIndexes();
  void markRecord(size_t position);
  void noteNew(size_t index);
  void forgetOrderAndSleep();
  void eraseSlots(const std::vector<uint32_t>& positions);
  std::vector<std::pair<uint32_t, uint32_t>> closeSlots(const std::vector<uint32_t>& freeSlots);
  size_t positionOfSlot(uint32_t slot) const;
  void markGone(size_t first, size_t last, size_t before);

  ListLayout layout_;
  RecordBuffer records_;
  std::vector<uint32_t> slots_;              // slot of the record at each position
  Index history_;                            // indices into records_ by their key
  Index groups_;                             // the same
  mutable std::vector<uint32_t> found_;      // the last answer of historyOf or groupOf
  mutable std::vector<uint32_t> positions_;  // of each slot, made when asked for
  std::optional<NumberSet> awake_;           // indices into records_; nothing while nobody sleeps
  SortKey sortedBy_;                         // by which the list is in order, but for `unsorted_`
  NumberSet unsorted_;                       // indices into records_
  uint64_t rewrites_ = 0;
  NumberSet changed_;  // chunks
  bool orderChanged_ = false;
  bool shrunk_ = false;
};

}  // namespace backbeat
