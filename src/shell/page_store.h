// The save of the browser's game as the engine sees it: rows handed in by the page at the start, and batches of writes
// handed back. Keeping them is the page's part; docs/page-protocol.md tells the form of both.
#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "core/store.h"

namespace backbeat {

class PageStore final : public Store {
 public:
  /// Takes one stored row, before the game starts. False, and nothing is taken, when it is malformed. One whose check
  /// does not fit is taken as damaged.
  bool addRow(std::string_view row);

  /// Whether any row was handed in.
  bool holdsRows() const { return !rows_.empty(); }

  /// Writes the rows that older versions left without a check once more.
  void giveChecks();

  /// Forgets the rows that were handed in: once the game is loaded nobody reads them again.
  void dropRows() { rows_.clear(); }

  /// Takes the name of a copy that the page keeps, and the room that it takes, before the game starts.
  void addSnapshot(std::string name, int64_t bytes) { snapshots_.insert_or_assign(std::move(name), bytes); }

  /// What a copy takes, which the page knows only after a while; one that is not there any more is ignored.
  void measureSnapshot(std::string_view name, int64_t bytes);

  /// Every write since the last call, in order; one transaction for the page. Empty when there is none.
  Bytes takeBatch();

  /// Adds to the batch; always succeeds.
  bool commit(std::span<const Write> writes) override;

  /// The rows handed in, but for those put aside.
  bool visitRows(const std::function<void(std::string_view, int32_t, const Value&)>& visit) override;
  size_t countRows(std::string_view key) override;

  /// Has the page move the key's rows, of those handed in, to the same rows under "quarantine/" and the key.
  void quarantine(std::string_view key) override;

  /// Has the page keep a copy of its rows as they stand at this place of the batch, or forget one.
  bool keepSnapshot(std::string_view name) override;
  void dropSnapshot(std::string_view name) override;
  std::vector<KeptCopy> snapshots() override;

 private:
  std::map<std::pair<std::string, int32_t>, Value> rows_;
  std::vector<std::pair<std::string, int32_t>> unchecked_;
  std::map<std::string, int64_t, std::less<>> snapshots_;  // name and room
  Bytes batch_;
};

}  // namespace backbeat
