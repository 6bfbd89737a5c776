// The save of the browser's game as the engine sees it: rows handed in by the page at the start, and batches of writes
// handed back. Keeping them is the page's part; docs/page-protocol.md tells the form of both.
#pragma once

#include <map>
#include <optional>
#include <set>
#include <string>
#include <utility>

#include "core/store.h"

namespace backbeat {

class PageStore final : public Store {
 public:
  /// Takes one stored row, before the game starts. False, and nothing is taken, when it is malformed.
  bool addRow(std::string_view row);

  /// Forgets the rows that were handed in: once the game is loaded nobody reads them again.
  void dropRows() { rows_.clear(); }

  /// Takes the name of a copy that the page keeps, before the game starts.
  void addSnapshot(std::string name) { snapshots_.insert(std::move(name)); }

  /// Every write since the last call, in order; one transaction for the page. Empty when there is none.
  Bytes takeBatch();

  /// Adds to the batch; always succeeds.
  bool commit(std::span<const Write> writes) override;

  /// The rows handed in, but for those put aside.
  bool visitRows(const std::function<void(std::string_view, int32_t, const Value&)>& visit) override;

  /// Has the page move the key's rows, of those handed in, to the same rows under "quarantine/" and the key.
  void quarantine(std::string_view key) override;

  /// Has the page keep a copy of its rows as they stand at this place of the batch, or forget one.
  bool keepSnapshot(std::string_view name) override;
  void dropSnapshot(std::string_view name) override;
  std::vector<std::string> snapshots() override { return {snapshots_.begin(), snapshots_.end()}; }

 private:
  std::map<std::pair<std::string, int32_t>, Value> rows_;
  std::set<std::string, std::less<>> snapshots_;
  Bytes batch_;
};

}  // namespace backbeat
