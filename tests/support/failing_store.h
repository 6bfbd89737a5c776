// A store whose writes fail when a test says so.
#pragma once

#include <limits>

#include "core/memory_store.h"

namespace backbeat {

/// Whatever changes it is counted; from the `failFrom`-th on, counted from 1, so many fail and change nothing.
class FailingStore final : public CareerStore {
 public:
  static constexpr int64_t forEver = std::numeric_limits<int64_t>::max();

  FailingStore(int64_t failFrom, int64_t howMany) : failFrom_(failFrom), howMany_(howMany) {}

  bool commit(std::span<const Write> writes) override { return works() && inner.commit(writes); }
  bool visitRows(const std::function<void(std::string_view, int32_t, const Value&)>& visit) override {
    return inner.visitRows(visit);
  }
  void quarantine(std::string_view key) override { inner.quarantine(key); }
  bool keepSnapshot(std::string_view name) override { return works() && inner.keepSnapshot(name); }
  void dropSnapshot(std::string_view name) override { inner.dropSnapshot(name); }
  std::vector<KeptCopy> snapshots() override { return inner.snapshots(); }
  bool replaceAll(std::span<const Write> rows) override { return works() && inner.replaceAll(rows); }
  bool restoreSnapshot(std::string_view name) override { return works() && inner.restoreSnapshot(name); }

  /// There is room on the disk again.
  void mend() { howMany_ = 0; }
  /// How many writes failed so far.
  int64_t failed() const { return failed_; }

  MemoryStore inner;

 private:
  bool works() {
    ++writes_;
    const bool fails = writes_ >= failFrom_ && failed_ < howMany_;
    failed_ += fails;
    return !fails;
  }

  int64_t failFrom_;
  int64_t howMany_;
  int64_t writes_ = 0;
  int64_t failed_ = 0;
};

}  // namespace backbeat
