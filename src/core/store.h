// Where a save lives: rows under a key, some of them cut into chunks. A store takes whole transactions and knows no
// rule.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "core/property_list.h"

namespace backbeat {

/// What stands where a value was stored that is not the one that was written: its bytes as they were found.
struct DamagedValue {
  Bytes found;
  bool operator==(const DamagedValue&) const = default;
};

/// A stored value: a whole number, a double, or an object (a property list). Damaged ones are read and never written.
using Value = std::variant<int64_t, double, Bytes, DamagedValue>;

/// The chunk number of a row that is not cut.
inline constexpr int32_t wholeRow = -1;

/// The chunk number of the row that holds the order of a list whose records keep their slots.
inline constexpr int32_t orderRow = -2;

/// The key of what belongs to the device and not to the career on it. Where the store holds rows of it, they stay when
/// another career takes the place of this one, and those that would come with it are passed over.
inline constexpr std::string_view deviceKey = "creditedPurchases";

/// One change: the row (key, chunk) takes the value, or goes when there is none.
struct Write {
  std::string key;
  int32_t chunk = wholeRow;
  std::optional<Value> value;
};

/// A kept copy of all rows, as a store knows it.
struct KeptCopy {
  std::string name;
  int64_t bytes = 0;  ///< the room that it takes; 0 while nobody knows yet
};

class Store {
 public:
  virtual ~Store() = default;

  /// Applies the writes in order, all or none of them, and returns once they are as safe as this store makes them.
  /// False when that failed; nothing has changed then.
  virtual bool commit(std::span<const Write> writes) = 0;

  /// Hands every row to `visit`, in the order of key and chunk. A row that is not as it was written has a value that
  /// says so. False when the store cannot be read.
  virtual bool visitRows(const std::function<void(std::string_view key, int32_t chunk, const Value& value)>& visit) = 0;

  /// How many rows stand under the key, where that is told without reading them; 0 otherwise.
  virtual size_t countRows(std::string_view) { return 0; }

  /// Puts rows that cannot be read aside, out of the game's way but not out of the world: they leave the store's rows
  /// and are kept under their own names for whoever wants to repair them.
  virtual void quarantine(std::string_view key) = 0;

  /// Keeps a copy of every row, but for those put aside, under `name`, which is new. False when that failed or this
  /// store keeps no copies; nothing has changed then.
  virtual bool keepSnapshot(std::string_view) { return false; }

  /// Forgets a kept copy.
  virtual void dropSnapshot(std::string_view) {}

  /// The kept copies, in the alphabetical order of their names.
  virtual std::vector<KeptCopy> snapshots() { return {}; }

  /// Work for a quiet moment after the turn (a checkpoint, say).
  virtual void rest() {}

  /// False for a store that keeps nothing: then nothing is encoded for it.
  virtual bool keeps() const { return true; }
};

/// A store that can put another career in the place of the one it holds. The game that runs on it has to be launched
/// anew afterwards.
class CareerStore : public Store {
 public:
  /// These rows, each under a key and chunk of its own, take the place of all rows but the device's. False when that
  /// failed; nothing has changed then.
  virtual bool replaceAll(std::span<const Write> rows) = 0;

  /// The rows of a kept copy take the place of all rows but the device's. False when there is no such copy or it
  /// failed; nothing has changed then.
  virtual bool restoreSnapshot(std::string_view name) = 0;

  /// Puts the whole save out of the way as it stands, unread, its copies with it, and begins an empty one. Where it is
  /// now, for the player; "" when that failed, and nothing has changed then.
  virtual std::string setAside() { return {}; }
};

/// Keeps nothing: for simulations.
class NullStore final : public Store {
 public:
  bool commit(std::span<const Write>) override { return true; }
  bool visitRows(const std::function<void(std::string_view, int32_t, const Value&)>&) override { return true; }
  void quarantine(std::string_view) override {}
  bool keeps() const override { return false; }
};

}  // namespace backbeat
