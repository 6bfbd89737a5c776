#include "core/record_buffer.h"

#include <algorithm>
#include <utility>

namespace backbeat {

RecordBuffer::RecordBuffer(const RecordBuffer& other)
    : type_(other.type_), bytes_(new char[other.size_ * other.type_->size]), capacity_(other.size_) {
  while (size_ < other.size_) {
    const size_t next = size_;
    copyValue(*type_, add(), other.recordAt(next));
  }
}

RecordBuffer::RecordBuffer(RecordBuffer&& other) noexcept
    : type_(other.type_),
      bytes_(std::move(other.bytes_)),
      first_(std::exchange(other.first_, 0)),
      size_(std::exchange(other.size_, 0)),
      capacity_(std::exchange(other.capacity_, 0)) {}

RecordBuffer& RecordBuffer::operator=(RecordBuffer other) noexcept {
  std::swap(type_, other.type_);
  std::swap(bytes_, other.bytes_);
  std::swap(first_, other.first_);
  std::swap(size_, other.size_);
  std::swap(capacity_, other.capacity_);
  return *this;
}

RecordBuffer::~RecordBuffer() { shrink(0); }

void RecordBuffer::reserve(size_t count) {
  if (first_ + count > capacity_) moveInto(first_, first_ + count);
}

void* RecordBuffer::add() {
  makeRoom();
  void* const place = recordAt(size_++);
  type_->make(place);
  return place;
}

void RecordBuffer::insert(size_t i, void* record) {
  if (i == 0 && size_ > 0) {
    makeRoomInFront();
    --first_;
  } else {
    makeRoom();
    for (size_t place = size_; place > i; --place) relocate(recordAt(place), recordAt(place - 1));
  }
  type_->take(recordAt(i), record);
  ++size_;
}

void RecordBuffer::move(size_t to, size_t from) {
  type_->end(recordAt(to));
  type_->take(recordAt(to), recordAt(from));
}

void RecordBuffer::erase(std::span<const uint32_t> positions) {
  if (positions.empty()) return;
  size_t kept = positions.front();
  auto gone = positions.begin();
  for (size_t i = kept; i < size_; ++i) {
    if (gone != positions.end() && *gone == i) {
      type_->end(recordAt(i));
      ++gone;
    } else {
      relocate(recordAt(kept++), recordAt(i));
    }
  }
  size_ = kept;
}

void RecordBuffer::shrink(size_t count) {
  while (size_ > count) type_->end(recordAt(--size_));
}

void RecordBuffer::reorder(std::span<const uint32_t> order, size_t roomInFront) {
  const size_t capacity = roomInFront + size_;
  std::unique_ptr<char[]> ordered(new char[capacity * type_->size]);
  char* first = ordered.get() + roomInFront * type_->size;
  for (size_t i = 0; i < size_; ++i) relocate(first + i * type_->size, recordAt(order[i]));
  bytes_ = std::move(ordered);
  first_ = roomInFront;
  capacity_ = capacity;
}

void RecordBuffer::makeRoom() {
  if (first_ + size_ == capacity_) moveInto(first_, std::max(size_t{4}, 2 * capacity_));
}

void RecordBuffer::makeRoomInFront() {
  if (first_ == 0) moveInto(size_, capacity_ + size_);
}

void RecordBuffer::moveInto(size_t first, size_t capacity) {
  std::unique_ptr<char[]> moved(new char[capacity * type_->size]);
  for (size_t i = 0; i < size_; ++i) relocate(moved.get() + (first + i) * type_->size, recordAt(i));
  bytes_ = std::move(moved);
  first_ = first;
  capacity_ = capacity;
}

// Raw memory takes what is at `from`, which is raw memory afterwards.
void RecordBuffer::relocate(void* to, void* from) {
  type_->take(to, from);
  type_->end(from);
}

}  // namespace backbeat
