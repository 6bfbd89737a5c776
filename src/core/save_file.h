// The door between the state and its store. Every rule that changes a scalar or a list writes it here in the same
// operation; one player action is one transaction.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_set>
#include <utility>
#include <vector>

#include "core/game_state.h"
#include "core/snapshots.h"
#include "core/store.h"

namespace backbeat {

/// What loading found.
struct LoadReport {
  std::vector<std::string> damaged;  ///< keys of what could not be read: on its default now, the rows put aside
  std::vector<std::string> mended;   ///< keys that held a number no rule can carry: the nearest stands there now
  int64_t lost = 0;                  ///< how many rows that were written are not there any more, of whatever keys
  bool readable = true;              ///< false when the store itself could not be read
  bool contractLost = false;         ///< the artist was under a contract that is not there, and is free now
};

/// What a store holds of one list.
struct StoredList {
  bool current = false;            ///< its rows are the list's chunks, but for those that the list has marked
  uint32_t chunks = 0;             ///< rows 0 to `chunks` - 1 are there
  std::vector<int32_t> leftovers;  ///< rows that could not be read and go when the list is saved
};

/// Places of rows, each by a fingerprint.
using RowPlaces = std::unordered_set<uint64_t, AsItIs>;

class SaveFile {
 public:
  explicit SaveFile(Store& store) : store_(store) {}

  /// Fills `state` (fresh, on its defaults) from the store: the lists, and the scalars but for the write-only ones.
  /// A key that is not there, or holds a value of another kind or one that does not fit, keeps its default; a whole
  /// number is welcome for a double and a double without fraction for a whole number. Lists load all or nothing.
  /// What is put aside, and every row that is missing, is in the report; none of it comes up at the next load.
  /// When the store cannot be read, `state` stays on its defaults and nothing is written from then on: half a career
  /// would otherwise take the place of what may still be mended.
  LoadReport load(GameState& state);

  /// The object stored whole under a key that is no scalar's and no list's, such as one that older versions used.
  /// Nothing when there is none.
  std::optional<Bytes> object(std::string_view key) const;

  /// Writes one scalar, or what changed of one list, under its key; it joins the open transaction.
  void writeScalar(const GameState& state, const Scalar& scalar);
  void writeList(std::string_view key, ChunkedList& list);

  /// Ends the transaction: everything written since the last call becomes durable at once. After a failure the writes
  /// are kept, the last one of each row, and tried again with the next transaction. True when nothing is left to write.
  bool commit();

  /// True after a failed commit, until one succeeds.
  bool failing() const { return failing_; }

  /// False once a load found that the store cannot be read: this career is not being kept.
  bool keeping() const { return keeping_; }

  /// Ends the transaction and keeps a copy of the whole save, which is `state`; see core/snapshots.h. False when that
  /// did not work. What is not being kept anyway has nothing worth a copy: true then.
  bool keepSnapshot(SnapshotKind kind, const GameState& state, Date now, std::string_view spared = {});

  /// What that would do with the copies that are there.
  SnapshotPlan planSnapshot(SnapshotKind kind, const GameState& state, std::string_view spared = {}) const;

  /// The kept copies, newest first.
  std::vector<Snapshot> snapshots() const { return snapshotsOf(store_); }

  /// The copy that is missed least; see core/snapshots.h.
  std::optional<Snapshot> dispensableSnapshot(std::string_view spared = {}) const {
    return backbeat::dispensableSnapshot(store_, spared);
  }

  /// Forgets a kept copy.
  void dropSnapshot(std::string_view name) { store_.dropSnapshot(name); }

  /// Tells the store that a quiet moment has come.
  void rest() { store_.rest(); }

 private:
  bool writes() const { return keeping_ && store_.keeps(); }
  void put(std::string_view key, int32_t chunk, std::optional<Value> value);
  void addPending(std::string_view key, int32_t chunk, std::optional<Value> value);
  void putChunk(std::string_view key, const ChunkedList& list, uint32_t number);
  void putOrder(std::string_view key, const std::vector<uint32_t>& slots);
  void putRemovals(std::string_view key, StoredList& stored, uint32_t chunks);

  Store& store_;
  PropertyListWriter writer_;
  std::vector<Write> pending_;
  std::map<std::pair<std::string, int32_t>, size_t> pendingRows_;  // where each row stands in pending_, while failing
  std::map<std::string, StoredList, std::less<>> lists_;
  std::map<std::string, Bytes, std::less<>> otherObjects_;
  RowPlaces rows_;       // the places that are taken
  bool counted_ = true;  // the store, or what is pending, knows how many they are
  bool failing_ = false;
  bool keeping_ = true;
};

/// The keys whose value in memory differs from what `store` would load, but for those that are never loaded; every key
/// when the store cannot be read. Empty when memory and store agree: what the random player checks after every action.
std::vector<std::string> differencesFromStore(const GameState& state, Store& store);

/// A fingerprint of the whole state, equal on every platform; what replays compare.
uint64_t stateHash(const GameState& state);

/// The same, but for what no load gives back: equal for two careers that go on alike.
uint64_t careerHash(const GameState& state);

}  // namespace backbeat
