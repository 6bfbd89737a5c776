// Records of one type, one behind the other, as a vector keeps them, with room at both ends: which type that is, is
// known only when the program runs, so that all lists share one body of code.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>

#include "core/value_type.h"

namespace backbeat {

class RecordBuffer {
 public:
  explicit RecordBuffer(const ValueType& record) : type_(&record) {}
  RecordBuffer(const RecordBuffer& other);
  RecordBuffer(RecordBuffer&& other) noexcept;
  RecordBuffer& operator=(RecordBuffer other) noexcept;
  ~RecordBuffer();

  const ValueType& type() const { return *type_; }
  size_t size() const { return size_; }
  /// The first record; good until one comes or goes.
  const void* data() const { return recordAt(0); }
  void* recordAt(size_t i) { return bytes_.get() + (first_ + i) * type_->size; }
  const void* recordAt(size_t i) const { return bytes_.get() + (first_ + i) * type_->size; }

  /// Has room for so many records, which then come without another move of those before them.
  void reserve(size_t count);
  /// One more record at the end, on its defaults; gives it.
  void* add();
  /// One more record at position `i`, made out of one that lies elsewhere and is left for its owner to end. Quick at
  /// both ends.
  void insert(size_t i, void* record);
  /// What was at `from` replaces what was at `to`; what is left at `from` is to go.
  void move(size_t to, size_t from);
  /// Removes the records at these positions, which ascend.
  void erase(std::span<const uint32_t> positions);
  /// Down to so many records.
  void shrink(size_t count);
  /// Position `i` takes what was at `order[i]`, which names each position once. After it there is room for so many more
  /// records in front.
  void reorder(std::span<const uint32_t> order, size_t roomInFront = 0);

 private:
  void makeRoom();
  void makeRoomInFront();
  void moveInto(size_t first, size_t capacity);
  void relocate(void* to, void* from);

  const ValueType* type_;
  std::unique_ptr<char[]> bytes_;
  size_t first_ = 0;  // so many free places lie in front
  size_t size_ = 0;
  size_t capacity_ = 0;  // with those in front
};

}  // namespace backbeat
