// A save that lives in memory: for tests, and for trials of a career.
#pragma once

#include <map>
#include <string>
#include <utility>

#include "core/store.h"

namespace backbeat {

class MemoryStore : public CareerStore {
 public:
  using Rows = std::map<std::pair<std::string, int32_t>, Value>;

  bool commit(std::span<const Write> writes) override;
  bool visitRows(const std::function<void(std::string_view, int32_t, const Value&)>& visit) override;
  void quarantine(std::string_view key) override;
  bool keepSnapshot(std::string_view name) override;
  void dropSnapshot(std::string_view name) override;
  std::vector<KeptCopy> snapshots() override;
  bool restoreSnapshot(std::string_view name) override;
  bool replaceAll(std::span<const Write> rows) override;

  /// The next `count` commits fail and change nothing.
  void failNext(int64_t count) { failures_ = count; }

  Rows rows;              ///< for tests to look at and to damage
  Rows quarantined;       ///< rows put aside
  int64_t commits = 0;    ///< successful ones
  int64_t bytes = 0;      ///< of the objects committed
  int64_t rowWrites = 0;  ///< rows written or removed

 private:
  static Rows exchanged(const Rows& before, const Rows& after);

  int64_t failures_ = 0;
  std::map<std::string, Rows, std::less<>> snapshots_;
};

}  // namespace backbeat
