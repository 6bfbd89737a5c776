// One career of a given length, several times: one copy is played against a real save, one tells what rows a week
// writes, one is played in memory. References are committed to saves of their own.
#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "heavy_career.h"
#include "shell/native/sqlite_store.h"

namespace backbeat {

/// Remembers what a week commits.
class Recorder final : public Store {
 public:
  bool commit(std::span<const Write> writes) override {
    transactions.emplace_back(writes.begin(), writes.end());
    return true;
  }
  bool visitRows(const std::function<void(std::string_view, int32_t, const Value&)>&) override { return true; }
  void quarantine(std::string_view) override {}

  std::vector<std::vector<Write>> transactions;
};

class SavedWorld {
 public:
  /// `name` is that of its saves in the folder.
  SavedWorld(const std::filesystem::path& folder, const std::string& name, int64_t weeks, LiveWeek live);

  void liveDurably() { live_(played_.game); }
  void playWeekDurably() { playWeek(played_.game); }
  void restAfterWeek() { store_->rest(); }

  void liveInMemory() { live_(memory_.game); }
  void playWeekInMemory() { playWeek(memory_.game); }

  /// A week is lived and played to know its rows; what is done before it is committed to the reference too.
  void recordWeek();
  /// The recorded week, row by row, and again with every list that a step touched written whole.
  void commitRows();
  void restRows() { rowStore_->rest(); }
  void commitWholeLists();
  void restWhole() { wholeStore_->rest(); }

  /// The career of the save, for what reads it.
  GameState& state() { return played_.game.state; }
  /// Rows and bytes of the recorded week.
  std::string weekWritten() const;
  /// Closes the save, so that others can open it; from then on only the state is left. The artist is rested by then, so
  /// that a tour can be planned.
  std::string closedPath();

 private:
  std::filesystem::path path_;
  LiveWeek live_;
  std::unique_ptr<SqliteStore> store_;
  std::unique_ptr<SqliteStore> rowStore_;
  std::unique_ptr<SqliteStore> wholeStore_;
  Recorder recorder_;
  NullStore nowhere_;
  LoneGame played_;
  LoneGame recorded_;
  LoneGame memory_;
};

}  // namespace backbeat
