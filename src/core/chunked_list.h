// What the save needs of a list, whatever it holds: how it is cut into rows, which of them changed, and its records as
// data.
#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

#include "core/value_type.h"

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
  explicit ChunkedList(ListLayout layout) : layout_(layout) {}

  const ListLayout& layout() const { return layout_; }

  virtual size_t size() const = 0;
  /// The type of a vector of the list's records.
  virtual const ValueType& type() const = 0;
  /// The records, in the order of the list.
  std::vector<const void*> records() const;
  /// Takes all of `records`, a vector of type `type()`; every chunk counts as changed.
  virtual void replaceWith(void* records) = 0;
  /// Whether `other`, a list of the same records, holds the same.
  virtual bool holdsSame(const ChunkedList& other) const = 0;

  /// How many chunks the list takes.
  uint32_t chunkCount() const;
  /// The records of chunk `number`, below `chunkCount()` or 0, in the order in which they are stored.
  std::vector<const void*> chunk(uint32_t number) const;
  /// The slot of each record in list order; empty unless the layout is `slots`.
  const std::vector<uint32_t>& slots() const { return slots_; }
  /// Takes a list as it was stored: `places`, a vector of type `type()`, in their order, and for `slots` the slot of
  /// each position; slots that are not named follow as they are. False, and the list is empty, when `slots` is no
  /// permutation or missing.
  virtual bool restore(void* places, std::vector<uint32_t> slots) = 0;

  /// Each once, in no order; some may lie past the last chunk, when the list got shorter.
  const std::vector<uint32_t>& changedChunks() const { return changed_; }
  bool orderChanged() const { return orderChanged_; }
  bool shrunk() const { return shrunk_; }
  void forgetChanges();
  void markAll();

 protected:
  ChunkedList(const ChunkedList&) = default;
  ChunkedList(ChunkedList&&) = default;
  ChunkedList& operator=(const ChunkedList&) = default;
  ChunkedList& operator=(ChunkedList&&) = default;
  ~ChunkedList() = default;

  bool hasSlots() const { return layout_.order == ListLayout::Order::slots; }
  size_t positionOfSlot(uint32_t slot) const;
  void mark(uint32_t number);
  void markRecord(size_t position);
  /// After records went from between positions `first` and `last` of `before` records; not with slots.
  void markGone(size_t first, size_t last, size_t before);
  /// After records went whose slots were `freeSlots`: those in slots beyond the shorter list get the free ones. Returns
  /// who moves, from slot to slot.
  std::vector<std::pair<uint32_t, uint32_t>> closeSlots(const std::vector<uint32_t>& freeSlots);
  void markOrder() { orderChanged_ = true; }
  static bool isPermutation(const std::vector<uint32_t>& slots, size_t size);

  std::vector<uint32_t> slots_;  // slot of the record at each position

 private:
  /// Where the records lie in memory: one after the other, by slot where there are slots, else in list order.
  virtual const void* memory() const = 0;
  void markPlacesFrom(size_t first);

  ListLayout layout_;
  mutable std::vector<uint32_t> positions_;  // of each slot, made when asked for
  std::vector<bool> isChanged_;
  std::vector<uint32_t> changed_;
  bool orderChanged_ = false;
  bool shrunk_ = false;
};

}  // namespace backbeat
