// A list of records that knows which of its parts changed, whatever its records are: how it is cut into rows, which of
// them have to be written, and its records as data. Rules use core/record_list.h, which knows the type.
#pragma once

#include <cstddef>
#include <cstdint>
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
  std::span<const uint32_t> historyOf(int64_t id) const;

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
  const std::vector<uint32_t>& changedChunks() const { return changed_; }
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
  void markRecord(size_t position);
  void rebuildHistory();

  /// What a list is sorted by: the key of a record, and where it stands.
  template <class Key>
  struct SortEntry {
    Key key;
    uint32_t position;
  };

  /// Stable sort by the keys, greatest first. Quick when few records are out of order, however long the list.
  void sortBy(std::vector<SortEntry<int64_t>> order);
  void sortBy(std::vector<SortEntry<double>> order);

 private:
  template <class Key>
  void sortByKeys(std::vector<SortEntry<Key>> order);
  void eraseSlots(const std::vector<uint32_t>& positions);
  std::vector<std::pair<uint32_t, uint32_t>> closeSlots(const std::vector<uint32_t>& freeSlots);
  size_t positionOfSlot(uint32_t slot) const;
  void mark(uint32_t number);
  void markGone(size_t first, size_t last, size_t before);
  int64_t historyKeyAt(size_t index) const;
  bool hasHistory() const { return type().historyKey != noHistoryKey; }

  ListLayout layout_;
  RecordBuffer records_;
  std::vector<uint32_t> slots_;                                 // slot of the record at each position
  std::unordered_map<int64_t, std::vector<uint32_t>> history_;  // indices into records_ by their key
  mutable std::vector<uint32_t> found_;                         // the last answer of historyOf
  mutable std::vector<uint32_t> positions_;                     // of each slot, made when asked for
  std::vector<bool> isChanged_;
  std::vector<uint32_t> changed_;
  bool orderChanged_ = false;
  bool shrunk_ = false;
};

}  // namespace backbeat
