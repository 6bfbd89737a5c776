// The save on a computer: one SQLite file.
#pragma once

#include <initializer_list>
#include <memory>
#include <string>

#include "core/store.h"

struct sqlite3;
struct sqlite3_stmt;

namespace backbeat {

/// Each commit is one transaction: after a kill the save is what some commit left, whole. A power failure may take the
/// last few commits with it, never a part of one. While a store is open no other program can open the same file.
class SqliteStore final : public CareerStore {
 public:
  struct Opened {
    std::unique_ptr<SqliteStore> store;  ///< none when opening failed
    std::string problem;                 ///< then one sentence for the player
  };

  /// Opens the save at `path`, or begins one; missing folders above it are made. Refused, with nothing changed, when
  /// the file cannot be read and written, is no save or a damaged one, or is open in another running game.
  static Opened open(const std::string& path);

  ~SqliteStore() override;
  SqliteStore(const SqliteStore&) = delete;
  SqliteStore& operator=(const SqliteStore&) = delete;

  bool commit(std::span<const Write> writes) override;
  bool visitRows(const std::function<void(std::string_view, int32_t, const Value&)>& visit) override;
  size_t countRows(std::string_view key) override;
  void quarantine(std::string_view key) override;
  bool keepSnapshot(std::string_view name) override;
  void dropSnapshot(std::string_view name) override;
  std::vector<KeptCopy> snapshots() override;
  bool replaceAll(std::span<const Write> rows) override;
  bool restoreSnapshot(std::string_view name) override;

  /// The file and its journal get a name that says so, and an empty save takes their place.
  std::string setAside() override;

  /// Leaves a mark that `endLaunch` takes away again, so that a launch that stopped the game is known by the next one.
  void beginLaunch();
  void endLaunch();
  bool launchStopped();

  /// Moves what was committed from the journal into the save's own pages.
  void rest() override;

 private:
  struct CloseDatabase {
    void operator()(sqlite3* database) const;
  };
  struct FinishStatement {
    void operator()(sqlite3_stmt* statement) const;
  };
  using Database = std::unique_ptr<sqlite3, CloseDatabase>;
  using Statement = std::unique_ptr<sqlite3_stmt, FinishStatement>;
  class Rows;

  SqliteStore(std::string path, Database database);
  bool prepareStatements();
  void dropStatements();
  bool apply(const Write& write);
  /// Removes every row but the device's.
  bool clearCareer();
  bool transaction(const std::function<bool()>& body);
  bool run(sqlite3_stmt* statement);
  Statement prepared(const char* sql) const;
  bool runFor(std::string_view name, std::initializer_list<const char*> statements);

  std::string path_;
  Database database_;  ///< none only when the file went away while it was set aside
  Statement begin_;
  Statement commit_;
  Statement rollback_;
  Statement putWhole_;
  Statement removeWhole_;
  Statement putChunk_;
  Statement removeChunk_;
};

}  // namespace backbeat
