#include "shell/native/sqlite_store.h"

#include <sqlite3.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <limits>
#include <system_error>
#include <utility>

#include "core/row_check.h"
#include "shell/native/packed_rows.h"

namespace backbeat {
namespace {

constexpr int applicationId = 0x42424254;
constexpr int formatVersion = 4;
constexpr int newerFormat = SQLITE_MISMATCH;  // SQLite itself never answers so to what is asked here

// The first access after this takes the file's lock and keeps it until the store is closed.
constexpr const char* lock = "PRAGMA locking_mode = EXCLUSIVE";

constexpr const char* tune =
    "PRAGMA page_size = 4096;"
    "PRAGMA journal_mode = WAL;"
    "PRAGMA synchronous = NORMAL;"
    "PRAGMA wal_autocheckpoint = 0;"
    "PRAGMA cell_size_check = ON;";

constexpr const char* tables =
    "CREATE TABLE IF NOT EXISTS kv (key TEXT PRIMARY KEY, value) WITHOUT ROWID;"
    "CREATE TABLE IF NOT EXISTS list (key TEXT, chunk INT, blob BLOB, PRIMARY KEY (key, chunk));"
    "CREATE TABLE IF NOT EXISTS quarantine (key TEXT, chunk INT, value, taken TEXT DEFAULT CURRENT_TIMESTAMP);"
    // Since version 2: whole copies of both.
    "CREATE TABLE IF NOT EXISTS snapshot (name TEXT PRIMARY KEY, taken TEXT DEFAULT CURRENT_TIMESTAMP);"
    "CREATE TABLE IF NOT EXISTS snapshot_row (name TEXT, key TEXT, chunk INT, value, PRIMARY KEY (name, key, chunk));"
    // Since version 3 a copy is one packed value; those of version 2 stay as they are.
    "CREATE TABLE IF NOT EXISTS snapshot_packed (name TEXT PRIMARY KEY, rows BLOB);"
    // Since version 4: holds a row while the game is launched on this save.
    "CREATE TABLE IF NOT EXISTS launch (begun TEXT DEFAULT CURRENT_TIMESTAMP);";

// Since version 4 each row carries a check of itself, `checkOfRow` of key, chunk and value.
constexpr const char* checks =
    "UPDATE kv SET fingerprint = checkOfRow(key, -1, value) WHERE fingerprint IS NULL;"
    "UPDATE list SET fingerprint = checkOfRow(key, chunk, blob) WHERE fingerprint IS NULL;";

std::string problemText(int code, const std::string& path) {
  switch (code & 0xFF) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED: return "The save " + path + " is open in another running game; close that one first.";
    case SQLITE_NOTADB: return "The file " + path + " is not a save of this game.";
    case SQLITE_CORRUPT: return "The save " + path + " is damaged and cannot be opened.";
    case newerFormat: return "The save " + path + " was made by a newer version of the game.";
    case SQLITE_FULL: return "There is no room left on the disk for the save " + path + ".";
    case SQLITE_PERM:
    case SQLITE_READONLY:
    case SQLITE_CANTOPEN: return "The save " + path + " cannot be opened for reading and writing.";
    default: return "The save " + path + " cannot be opened: " + sqlite3_errstr(code) + ".";
  }
}

int execute(sqlite3* database, const std::string& sql) {
  return sqlite3_exec(database, sql.c_str(), nullptr, nullptr, nullptr);
}

std::string_view bytesOf(sqlite3_value* value) {
  const void* bytes = sqlite3_value_blob(value);
  return {static_cast<const char*>(bytes), static_cast<size_t>(sqlite3_value_bytes(value))};
}

template <class Number>
std::string_view rawBytes(const Number& number) {
  return {reinterpret_cast<const char*>(&number), sizeof number};
}

int64_t checkOf(std::string_view key, int32_t chunk, int kind, std::string_view value) {
  return static_cast<int64_t>(rowCheck(key, chunk, static_cast<char>(kind), value));
}

/// The check of a row that is about to be written, whose value is not damaged.
int64_t checkOf(const Write& row) {
  const auto check = [&](int kind, std::string_view value) { return checkOf(row.key, row.chunk, kind, value); };
  if (const auto* whole = std::get_if<int64_t>(&*row.value)) return check(SQLITE_INTEGER, rawBytes(*whole));
  if (const auto* object = std::get_if<Bytes>(&*row.value)) return check(SQLITE_BLOB, *object);
  const double real = std::get<double>(*row.value);
  // SQLite keeps nothing of a double that is no number.
  return std::isnan(real) ? check(SQLITE_NULL, "") : check(SQLITE_FLOAT, rawBytes(real));
}

/// The same of a row that is stored, for SQL.
void checkOfRow(sqlite3_context* context, int, sqlite3_value** row) {
  const int kind = sqlite3_value_type(row[2]);
  const auto check = [&](std::string_view value) {
    sqlite3_result_int64(context, checkOf(bytesOf(row[0]), sqlite3_value_int(row[1]), kind, value));
  };
  if (kind == SQLITE_INTEGER) return check(rawBytes(int64_t{sqlite3_value_int64(row[2])}));
  if (kind == SQLITE_FLOAT) return check(rawBytes(sqlite3_value_double(row[2])));
  check(bytesOf(row[2]));
}

int addCheckOfRow(sqlite3* database) {
  constexpr int flags = SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_DIRECTONLY;
  return sqlite3_create_function_v2(database, "checkOfRow", 3, flags, nullptr, checkOfRow, nullptr, nullptr, nullptr);
}

// The number that a query answers with; in `code` SQLITE_OK or what went wrong.
int queryNumber(sqlite3* database, const char* sql, int& code) {
  sqlite3_stmt* statement = nullptr;
  code = sqlite3_prepare_v2(database, sql, -1, &statement, nullptr);
  if (code != SQLITE_OK) return 0;
  const int step = sqlite3_step(statement);
  const int number = step == SQLITE_ROW ? sqlite3_column_int(statement, 0) : 0;
  code = step == SQLITE_ROW ? SQLITE_OK : step;
  sqlite3_finalize(statement);
  return number;
}

// A file that holds tables of its own or another mark is somebody else's.
int checkOwner(sqlite3* database) {
  int code;
  const int id = queryNumber(database, "PRAGMA application_id", code);
  if (code != SQLITE_OK) return code;
  const int objects = queryNumber(database, "SELECT count(*) FROM sqlite_schema", code);
  if (code != SQLITE_OK) return code;
  return id == applicationId || (id == 0 && objects == 0) ? SQLITE_OK : SQLITE_NOTADB;
}

int checkVersion(sqlite3* database) {
  int code;
  const int version = queryNumber(database, "PRAGMA user_version", code);
  return code == SQLITE_OK && version > formatVersion ? newerFormat : code;
}

/// The statement that gives a table the column of the checks; a save whose version is damaged has it already.
std::string withColumn(sqlite3* database, const char* table) {
  const int found = sqlite3_table_column_metadata(database, "main", table, "fingerprint", nullptr, nullptr, nullptr,
                                                  nullptr, nullptr);
  return found == SQLITE_OK ? "" : std::string("ALTER TABLE ") + table + " ADD COLUMN fingerprint INT;";
}

int makeTables(sqlite3* database) {
  int code;
  const int version = queryNumber(database, "PRAGMA user_version", code);
  if (code != SQLITE_OK || version == formatVersion) return code;
  return execute(database, std::string("BEGIN;") + tables + withColumn(database, "kv") + withColumn(database, "list") +
                               checks + "PRAGMA application_id = " + std::to_string(applicationId) +
                               "; PRAGMA user_version = " + std::to_string(formatVersion) + "; COMMIT;");
}

void bindKey(sqlite3_stmt* statement, std::string_view key, int32_t chunk) {
  sqlite3_bind_text64(statement, 1, key.data(), key.size(), SQLITE_STATIC, SQLITE_UTF8);
  if (chunk != wholeRow) sqlite3_bind_int(statement, 2, chunk);
}

void bindValue(sqlite3_stmt* statement, int column, const Value& value) {
  if (const auto* whole = std::get_if<int64_t>(&value)) {
    sqlite3_bind_int64(statement, column, *whole);
  } else if (const auto* real = std::get_if<double>(&value)) {
    sqlite3_bind_double(statement, column, *real);
  } else if (const auto* bytes = std::get_if<Bytes>(&value)) {
    sqlite3_bind_blob64(statement, column, bytes->data(), bytes->size(), SQLITE_STATIC);
  }
}

std::string_view bytesAt(sqlite3_stmt* statement, int column) {
  const void* bytes = sqlite3_column_blob(statement, column);
  return {static_cast<const char*>(bytes), static_cast<size_t>(sqlite3_column_bytes(statement, column))};
}

Value valueAt(sqlite3_stmt* statement, int column) {
  switch (sqlite3_column_type(statement, column)) {
    case SQLITE_INTEGER: return int64_t{sqlite3_column_int64(statement, column)};
    case SQLITE_FLOAT: return sqlite3_column_double(statement, column);
    case SQLITE_NULL: return std::numeric_limits<double>::quiet_NaN();  // as SQLite keeps a double that is no number
    default: return Bytes(bytesAt(statement, column));
  }
}

bool isThere(const std::string& path) {
  std::error_code problem;
  return std::filesystem::exists(path, problem);
}

bool renamed(const std::string& from, const std::string& to) { return std::rename(from.c_str(), to.c_str()) == 0; }

/// The name, or the name with the first number that nobody has; "" when a thousand are taken.
std::string freshName(const std::string& wanted) {
  if (!isThere(wanted)) return wanted;
  for (int number = 2; number < 1000; ++number) {
    const std::string name = wanted + "-" + std::to_string(number);
    if (!isThere(name)) return name;
  }
  return {};
}

}  // namespace

void SqliteStore::CloseDatabase::operator()(sqlite3* database) const { sqlite3_close(database); }

void SqliteStore::FinishStatement::operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }

SqliteStore::SqliteStore(std::string path, Database database)
    : path_(std::move(path)), database_(std::move(database)) {}

SqliteStore::~SqliteStore() = default;

SqliteStore::Opened SqliteStore::open(const std::string& path) {
  const std::filesystem::path folder = std::filesystem::path(path).parent_path();
  std::error_code folderProblem;
  if (!folder.empty()) std::filesystem::create_directories(folder, folderProblem);
  if (folderProblem) {
    return {nullptr, "The folder " + folder.string() + " cannot be made: " + folderProblem.message() + "."};
  }
  sqlite3* raw = nullptr;
  int code =
      sqlite3_open_v2(path.c_str(), &raw, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_NOMUTEX, nullptr);
  Database database(raw);
  if (code == SQLITE_OK && sqlite3_db_readonly(raw, "main") == 1) code = SQLITE_READONLY;
  // Not even the journal of a save that is refused is folded into it.
  const auto foldJournalWhenClosed = [&](bool folds) {
    sqlite3_db_config(raw, SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, folds ? 0 : 1, nullptr);
  };
  if (code == SQLITE_OK) foldJournalWhenClosed(false);
  if (code == SQLITE_OK) code = execute(raw, lock);
  if (code == SQLITE_OK) code = checkOwner(raw);
  if (code == SQLITE_OK) code = checkVersion(raw);
  if (code == SQLITE_OK) code = execute(raw, tune);
  if (code == SQLITE_OK) code = addCheckOfRow(raw);
  if (code == SQLITE_OK) code = makeTables(raw);
  if (code != SQLITE_OK) return {nullptr, problemText(code, path)};
  foldJournalWhenClosed(true);
  std::unique_ptr<SqliteStore> store(new SqliteStore(path, std::move(database)));
  if (!store->prepareStatements()) return {nullptr, problemText(sqlite3_errcode(raw), path)};
  return {std::move(store), ""};
}

bool SqliteStore::prepareStatements() {
  const auto prepare = [&](Statement& statement, const char* sql) {
    sqlite3_stmt* raw = nullptr;
    const int code = sqlite3_prepare_v3(database_.get(), sql, -1, SQLITE_PREPARE_PERSISTENT, &raw, nullptr);
    statement.reset(raw);
    return code == SQLITE_OK;
  };
  return prepare(begin_, "BEGIN IMMEDIATE") && prepare(commit_, "COMMIT") && prepare(rollback_, "ROLLBACK") &&
         prepare(putWhole_,
                 "INSERT INTO kv VALUES (?1, ?2, ?3) ON CONFLICT (key) DO UPDATE SET value = ?2, fingerprint = ?3") &&
         prepare(removeWhole_, "DELETE FROM kv WHERE key = ?1") &&
         prepare(putChunk_,
                 "INSERT INTO list VALUES (?1, ?2, ?3, ?4) ON CONFLICT (key, chunk) DO UPDATE"
                 " SET blob = ?3, fingerprint = ?4") &&
         prepare(removeChunk_, "DELETE FROM list WHERE key = ?1 AND chunk = ?2");
}

bool SqliteStore::run(sqlite3_stmt* statement) {
  const bool done = sqlite3_step(statement) == SQLITE_DONE;
  sqlite3_reset(statement);
  return done;
}

SqliteStore::Statement SqliteStore::prepared(const char* sql) const {
  sqlite3_stmt* raw = nullptr;
  if (database_) sqlite3_prepare_v2(database_.get(), sql, -1, &raw, nullptr);
  return Statement(raw);
}

/// Runs each statement for the key or name that it calls ?1.
bool SqliteStore::runFor(std::string_view name, std::initializer_list<const char*> statements) {
  return std::all_of(statements.begin(), statements.end(), [&](const char* sql) {
    const Statement statement = prepared(sql);
    if (!statement) return false;
    bindKey(statement.get(), name, wholeRow);
    return run(statement.get());
  });
}

bool SqliteStore::transaction(const std::function<bool()>& body) {
  if (!run(begin_.get())) return false;
  if (body() && run(commit_.get())) return true;
  const bool alreadyRolledBack = sqlite3_get_autocommit(database_.get()) != 0;
  if (!alreadyRolledBack) run(rollback_.get());
  return false;
}

bool SqliteStore::apply(const Write& write) {
  const bool whole = write.chunk == wholeRow;
  if (!write.value) {
    sqlite3_stmt* remove = (whole ? removeWhole_ : removeChunk_).get();
    bindKey(remove, write.key, write.chunk);
    return run(remove);
  }
  if (std::holds_alternative<DamagedValue>(*write.value)) return false;
  sqlite3_stmt* put = (whole ? putWhole_ : putChunk_).get();
  bindKey(put, write.key, write.chunk);
  bindValue(put, whole ? 2 : 3, *write.value);
  sqlite3_bind_int64(put, whole ? 3 : 4, checkOf(write));
  return run(put);
}

bool SqliteStore::commit(std::span<const Write> writes) {
  return transaction([&] {
    for (const Write& write : writes) {
      if (!apply(write)) return false;
    }
    return true;
  });
}

/// Goes through a query of key, chunk, value, and whether the check fits.
class SqliteStore::Rows {
 public:
  explicit Rows(Statement rows) : rows_(std::move(rows)) { next(); }

  void next() { code_ = rows_ ? sqlite3_step(rows_.get()) : SQLITE_ERROR; }
  bool there() const { return code_ == SQLITE_ROW; }
  bool atEnd() const { return code_ == SQLITE_DONE; }
  std::pair<std::string_view, int32_t> place() const {
    return {bytesAt(rows_.get(), 0), sqlite3_column_int(rows_.get(), 1)};
  }
  Value valueHere() {
    // One that comes twice, or too late, stands where another one stood.
    const std::pair<std::string, int32_t> here(place());
    const bool sound = sqlite3_column_int(rows_.get(), 3) != 0 && (!last_ || here > *last_);
    if (!sound) return DamagedValue{Bytes(bytesAt(rows_.get(), 2))};
    last_ = here;
    return valueAt(rows_.get(), 2);
  }

 private:
  Statement rows_;
  int code_ = SQLITE_DONE;
  std::optional<std::pair<std::string, int32_t>> last_;  // of those that are sound
};

bool SqliteStore::visitRows(const std::function<void(std::string_view, int32_t, const Value&)>& visit) {
  Rows wholes(prepared("SELECT key, -1, value, fingerprint IS checkOfRow(key, -1, value) FROM kv ORDER BY key"));
  Rows chunks(
      prepared("SELECT key, chunk, blob, fingerprint IS checkOfRow(key, chunk, blob) FROM list ORDER BY key, chunk"));
  while (wholes.there() || chunks.there()) {
    Rows& next = !chunks.there() || (wholes.there() && wholes.place() < chunks.place()) ? wholes : chunks;
    const auto [key, number] = next.place();
    visit(key, number, next.valueHere());
    next.next();
  }
  sqlite3_db_release_memory(database_.get());  // what was read once is not read again
  return wholes.atEnd() && chunks.atEnd();
}

size_t SqliteStore::countRows(std::string_view key) {
  const Statement count = prepared("SELECT count(*) FROM list WHERE key = ?1");
  if (!count) return 0;
  bindKey(count.get(), key, wholeRow);
  return sqlite3_step(count.get()) == SQLITE_ROW ? static_cast<size_t>(sqlite3_column_int64(count.get(), 0)) : 0;
}

void SqliteStore::quarantine(std::string_view key) {
  transaction([&] {
    return runFor(key, {"INSERT INTO quarantine (key, chunk, value) SELECT key, -1, value FROM kv WHERE key = ?1",
                        "INSERT INTO quarantine (key, chunk, value) SELECT key, chunk, blob FROM list WHERE key = ?1",
                        "DELETE FROM kv WHERE key = ?1", "DELETE FROM list WHERE key = ?1"});
  });
}

bool SqliteStore::keepSnapshot(std::string_view name) {
  RowPacker packer;
  const bool read = visitRows([&](std::string_view key, int32_t chunk, const Value& value) {
    if (!std::holds_alternative<DamagedValue>(value)) packer.add({std::string(key), chunk, value});
  });
  const Value packed = read ? packer.finish() : Bytes();  // bound below as it stands here
  if (std::get<Bytes>(packed).empty()) return false;
  return transaction([&] {
    const Statement put = prepared("INSERT INTO snapshot_packed VALUES (?1, ?2)");
    if (!put || !runFor(name, {"INSERT INTO snapshot (name) VALUES (?1)"})) return false;
    bindKey(put.get(), name, wholeRow);
    bindValue(put.get(), 2, packed);
    return run(put.get());
  });
}

void SqliteStore::dropSnapshot(std::string_view name) {
  transaction([&] {
    return runFor(name, {"DELETE FROM snapshot WHERE name = ?1", "DELETE FROM snapshot_row WHERE name = ?1",
                         "DELETE FROM snapshot_packed WHERE name = ?1"});
  });
}

std::vector<KeptCopy> SqliteStore::snapshots() {
  std::vector<KeptCopy> kept;
  const Statement all = prepared(
      "SELECT name, coalesce((SELECT length(rows) FROM snapshot_packed AS packed WHERE packed.name = snapshot.name),"
      " (SELECT sum(length(key) + length(value)) FROM snapshot_row AS row WHERE row.name = snapshot.name), 0)"
      " FROM snapshot ORDER BY name");
  while (all && sqlite3_step(all.get()) == SQLITE_ROW) {
    kept.push_back({std::string(bytesAt(all.get(), 0)), sqlite3_column_int64(all.get(), 1)});
  }
  return kept;
}

bool SqliteStore::clearCareer() { return runFor(deviceKey, {"DELETE FROM kv", "DELETE FROM list WHERE key <> ?1"}); }

bool SqliteStore::replaceAll(std::span<const Write> rows) {
  return transaction([&] {
    if (!clearCareer()) return false;
    int code = SQLITE_OK;
    const bool keepsDevices = queryNumber(database_.get(), "SELECT count(*) FROM list", code) != 0;
    return code == SQLITE_OK && std::all_of(rows.begin(), rows.end(), [&](const Write& row) {
             return (keepsDevices && row.key == deviceKey) || apply(row);
           });
  });
}

bool SqliteStore::restoreSnapshot(std::string_view name) {
  const std::vector<KeptCopy> known = snapshots();
  const auto found = std::find_if(known.begin(), known.end(), [&](const KeptCopy& copy) { return copy.name == name; });
  if (found == known.end()) return false;
  const Statement packed = prepared("SELECT rows FROM snapshot_packed WHERE name = ?1");
  if (!packed) return false;
  bindKey(packed.get(), name, wholeRow);
  const int step = sqlite3_step(packed.get());
  if (step == SQLITE_ROW) {
    const auto rows = unpackRows(bytesAt(packed.get(), 0));
    sqlite3_reset(packed.get());
    return rows && replaceAll(*rows);
  }
  if (step != SQLITE_DONE) return false;
  return transaction([&] {
    return clearCareer() &&
           runFor(name, {"INSERT INTO kv SELECT key, value, checkOfRow(key, -1, value) FROM snapshot_row"
                         " WHERE name = ?1 AND chunk = -1",
                         "INSERT INTO list SELECT key, chunk, value, checkOfRow(key, chunk, value) FROM snapshot_row "
                         "WHERE name = ?1 AND chunk <> -1"});
  });
}

void SqliteStore::beginLaunch() {
  transaction([&] { return runFor("", {"INSERT INTO launch DEFAULT VALUES"}); });
}

void SqliteStore::endLaunch() {
  transaction([&] { return runFor("", {"DELETE FROM launch"}); });
}

bool SqliteStore::launchStopped() {
  int code;
  return queryNumber(database_.get(), "SELECT count(*) FROM launch", code) != 0 || code != SQLITE_OK;
}

void SqliteStore::dropStatements() {
  for (Statement* statement : {&begin_, &commit_, &rollback_, &putWhole_, &removeWhole_, &putChunk_, &removeChunk_}) {
    statement->reset();
  }
}

std::string SqliteStore::setAside() {
  const std::string place = freshName(path_ + ".unreadable");
  if (place.empty()) return {};
  dropStatements();
  sqlite3_db_config(database_.get(), SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, nullptr);
  database_.reset();
  const bool journalMoves = !isThere(path_ + "-wal") || renamed(path_ + "-wal", place + "-wal");
  const bool moved = journalMoves && renamed(path_, place);
  if (!moved) renamed(place + "-wal", path_ + "-wal");
  Opened opened = open(path_);
  if (!opened.store) return {};
  opened.store->dropStatements();
  database_ = std::move(opened.store->database_);
  return prepareStatements() && moved ? place : "";
}

void SqliteStore::rest() {
  if (database_) sqlite3_wal_checkpoint_v2(database_.get(), nullptr, SQLITE_CHECKPOINT_PASSIVE, nullptr, nullptr);
}

}  // namespace backbeat
