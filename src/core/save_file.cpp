#include "core/save_file.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <set>

#include "core/career_check.h"
#include "core/record_codec.h"
#include "core/row_check.h"

namespace backbeat {
namespace {

// How many rows there are besides this one and the device's, since a row that is gone tells nothing itself. The first
// of all keys: when a part of the rows cannot be found any more, it is seldom the first. The device's stay while the
// others come and go with their careers.
constexpr std::string_view countKey = "#rows";

uint64_t placeOf(std::string_view key, int32_t chunk) { return rowCheck(key, chunk, 0, ""); }

std::optional<std::vector<uint32_t>> decodeOrder(std::string_view propertyList) {
  const auto reader = PropertyListReader::open(propertyList);
  const auto bytes = reader ? reader->data(reader->root()) : std::nullopt;
  if (!bytes || bytes->size() % 4 != 0) return {};
  std::vector<uint32_t> slots(bytes->size() / 4);
  for (size_t i = 0; i < bytes->size(); ++i) {
    slots[i / 4] |= static_cast<uint32_t>(static_cast<uint8_t>((*bytes)[i])) << (i % 4 * 8);
  }
  return slots;
}

Bytes encodeOrder(PropertyListWriter& writer, const std::vector<uint32_t>& slots) {
  static_assert(std::endian::native == std::endian::little, "four bytes a slot, the lowest first");
  const auto* bytes = reinterpret_cast<const char*>(slots.data());
  return writer.finish(writer.data({bytes, slots.size() * sizeof(uint32_t)}));
}

/// Takes the rows of one list as the store yields them.
class ListLoader {
 public:
  explicit ListLoader(ChunkedList& list) : list_(list) {}

  void take(int32_t chunk, const Value& value) {
    stored.leftovers.push_back(chunk);
    const Bytes* row = std::get_if<Bytes>(&value);
    damaged_ = damaged_ || row == nullptr || !(chunk == orderRow ? takeOrder(*row) : takeChunk(chunk, *row));
  }

  /// After the first chunk: so many rows there are in all. Where they are like it their records never have to move,
  /// which would need the memory twice; what the next years add has room as well.
  void expect(size_t rows) {
    constexpr size_t mostBelieved = 1 << 22;  // more records than that come from nobody's career
    const size_t records = std::min(rows, mostBelieved / std::max<size_t>(places_.size(), 1)) * places_.size();
    places_.reserve(records + records / 8);
  }

  /// Fills the list; it stays as it was, and counts as damaged, when its rows are no whole list.
  void finish() {
    if (stored.leftovers.empty()) return;
    mended = !damaged_ && mendRecords(places_) > 0;
    damaged_ = damaged_ || stored.chunks == 0 || !list_.restore(std::move(places_), std::move(slots_));
    if (damaged_) {
      stored.chunks = 0;
      return;
    }
    stored.leftovers.clear();
    stored.current = !cutOtherwise_ && !mended;
  }

  bool damaged() const { return damaged_; }

  StoredList stored;
  bool mended = false;

 private:
  bool takeOrder(const Bytes& row) {
    auto order = decodeOrder(row);
    if (!order || list_.layout().order != ListLayout::Order::slots) return false;
    slots_ = std::move(*order);
    return true;
  }

  bool takeChunk(int32_t chunk, const Bytes& row) {
    if (chunk < 0 || static_cast<uint32_t>(chunk) != stored.chunks) return false;
    // Rows of another size come from a version that cut the list otherwise; the next save cuts it anew.
    const size_t chunkSize = list_.layout().chunkSize;
    if (places_.size() != stored.chunks * chunkSize) cutOtherwise_ = true;
    ++stored.chunks;
    if (!RecordDecoder(row).append(places_)) return false;
    if (places_.size() > stored.chunks * chunkSize) cutOtherwise_ = true;
    return true;
  }

  ChunkedList& list_;
  RecordBuffer places_{list_.type()};
  std::vector<uint32_t> slots_;
  bool damaged_ = false;
  bool cutOtherwise_ = false;
};

std::optional<int64_t> asInteger(const Value& value) {
  if (const auto* whole = std::get_if<int64_t>(&value)) return *whole;
  const auto* real = std::get_if<double>(&value);
  const bool fits = real && *real >= -0x1p63 && *real < 0x1p63 && std::trunc(*real) == *real;
  if (!fits) return {};
  return static_cast<int64_t>(*real);
}

void loadScalar(GameState& state, int64_t GameState::*member, const Value& value) {
  if (const auto whole = asInteger(value)) state.*member = *whole;
}

void loadScalar(GameState& state, double GameState::*member, const Value& value) {
  if (const auto* whole = std::get_if<int64_t>(&value)) state.*member = static_cast<double>(*whole);
  if (const auto* real = std::get_if<double>(&value)) state.*member = *real;
}

template <class T>
void loadScalar(GameState& state, T GameState::*member, const Value& value) {
  const auto* row = std::get_if<Bytes>(&value);
  if (auto object = row ? decodeValue<T>(*row) : std::nullopt) state.*member = std::move(*object);
}

/// Sorts the rows of a store into a state.
class Loader {
 public:
  explicit Loader(GameState& state) : state_(state) {
    for (const auto& [key, list] : listsOf(state)) lists_.emplace(key, list);
    for (const Scalar& scalar : scalars) scalars_[scalar.key] = &scalar;
  }

  bool run(Store& store) {
    store_ = &store;
    const bool readable =
        store.visitRows([&](std::string_view key, int32_t chunk, const Value& value) { take(key, chunk, value); });
    for (const auto& [key, unused] : listsOf(state_)) {
      ListLoader& list = lists_.find(key)->second;
      list.finish();
      if (list.damaged()) damaged.emplace_back(key);
    }
    damaged.insert(damaged.end(), damagedWholes_.begin(), damagedWholes_.end());
    return readable;
  }

  const ListLoader& list(std::string_view key) const { return lists_.find(key)->second; }
  /// None when the key is no scalar's.
  const Scalar* scalar(std::string_view key) const {
    const auto found = scalars_.find(key);
    return found == scalars_.end() ? nullptr : found->second;
  }
  /// False as well for a save that was never counted.
  bool isCounted() const { return counted_.value_or(0) == visited_; }
  bool isMiscounted() const { return counted_.value_or(visited_) != visited_; }
  int64_t lost() const { return std::max(counted_.value_or(0) - visited_, int64_t{0}); }

  std::vector<std::string> damaged;  ///< keys, those of lists first
  RowPlaces rows;                    ///< where the rows are that stay
  std::map<std::string, Bytes, std::less<>> otherObjects;

 private:
  void take(std::string_view key, int32_t chunk, const Value& value) {
    if (key == countKey && std::holds_alternative<int64_t>(value)) {
      counted_ = std::get<int64_t>(value);
      return;
    }
    if (key != deviceKey) ++visited_;
    const auto list = lists_.find(key);
    if (list == lists_.end() && std::holds_alternative<DamagedValue>(value)) {
      damagedWholes_.emplace(key);
      return;
    }
    if (key != deviceKey) rows.insert(placeOf(key, chunk));
    if (list != lists_.end()) {
      list->second.take(chunk, value);
      if (chunk == 0) list->second.expect(store_->countRows(key));
    } else if (chunk == wholeRow) {
      takeWhole(key, value);
    }
  }

  void takeWhole(std::string_view key, const Value& value) {
    if (const Scalar* known = scalar(key)) {
      if (known->loading == Loading::writeOnly) return;
      std::visit([&](auto member) { loadScalar(state_, member, value); }, known->member);
    } else if (const auto* object = std::get_if<Bytes>(&value)) {
      otherObjects.emplace(key, *object);
    }
  }

  GameState& state_;
  Store* store_ = nullptr;
  std::map<std::string_view, ListLoader> lists_;
  std::map<std::string_view, const Scalar*> scalars_;
  std::set<std::string, std::less<>> damagedWholes_;
  std::optional<int64_t> counted_;
  int64_t visited_ = 0;
};

}  // namespace

LoadReport SaveFile::load(GameState& state) {
  Loader loader(state);
  LoadReport report;
  report.readable = loader.run(store_);
  keeping_ = report.readable;
  if (!report.readable) {
    state = GameState();
    return report;
  }
  report.damaged = loader.damaged;
  report.lost = loader.lost();
  report.mended = mendScalars(state);
  lists_.clear();
  for (const auto& [key, list] : listsOf(state)) lists_.emplace(key, loader.list(key).stored);
  otherObjects_ = std::move(loader.otherObjects);
  rows_ = std::move(loader.rows);
  counted_ = loader.isCounted() && report.damaged.empty();
  for (const std::string& key : report.damaged) store_.quarantine(key);
  for (const auto& keys : {report.damaged, report.mended}) {
    for (const std::string& key : keys) {
      if (const Scalar* scalar = loader.scalar(key)) writeScalar(state, *scalar);
    }
  }
  for (const auto& [key, list] : listsOf(state)) {
    const ListLoader& loaded = loader.list(key);
    if (loaded.mended) report.mended.emplace_back(key);
    if (loaded.mended || loaded.damaged()) writeList(key, list);
  }
  if (!report.damaged.empty()) commit();
  return report;
}

void SaveFile::put(std::string_view key, int32_t chunk, std::optional<Value> value) {
  if (key != deviceKey) {
    const uint64_t place = placeOf(key, chunk);
    const bool changes = value ? rows_.insert(place).second : rows_.erase(place) > 0;
    if (changes) counted_ = false;
  }
  addPending(key, chunk, std::move(value));
}

void SaveFile::addPending(std::string_view key, int32_t chunk, std::optional<Value> value) {
  if (failing_) {
    const auto [known, isNew] = pendingRows_.try_emplace({std::string(key), chunk}, pending_.size());
    if (!isNew) {
      pending_[known->second].value = std::move(value);
      return;
    }
  }
  pending_.push_back({std::string(key), chunk, std::move(value)});
}

std::optional<Bytes> SaveFile::object(std::string_view key) const {
  const auto found = otherObjects_.find(key);
  if (found == otherObjects_.end()) return {};
  return found->second;
}

void SaveFile::writeScalar(const GameState& state, const Scalar& scalar) {
  if (!writes()) return;
  const auto write = [&](auto member) {
    const auto& value = state.*member;
    if constexpr (std::is_arithmetic_v<std::decay_t<decltype(value)>>) {
      put(scalar.key, wholeRow, value);
    } else {
      put(scalar.key, wholeRow, encodeValue(writer_, value));
    }
  };
  std::visit(write, scalar.member);
}

void SaveFile::writeList(std::string_view key, ChunkedList& list) {
  if (writes()) {
    StoredList& stored = lists_.try_emplace(std::string(key)).first->second;
    if (!stored.current) list.markAll();
    putRemovals(key, stored, list.chunkCount());
    for (const uint32_t number : list.changedChunks()) {
      if (number < list.chunkCount()) putChunk(key, list, number);
    }
    if (list.size() == 0 && list.shrunk()) putChunk(key, list, 0);
    if (list.orderChanged()) putOrder(key, list.slots());
  }
  list.forgetChanges();
}

void SaveFile::putChunk(std::string_view key, const ChunkedList& list, uint32_t number) {
  RecordEncoder encoder(writer_);
  put(key, static_cast<int32_t>(number), writer_.finish(encoder.records(list.type(), list.chunk(number))));
}

void SaveFile::putOrder(std::string_view key, const std::vector<uint32_t>& slots) {
  put(key, orderRow, encodeOrder(writer_, slots));
}

void SaveFile::putRemovals(std::string_view key, StoredList& stored, uint32_t chunks) {
  for (const int32_t chunk : stored.leftovers) put(key, chunk, std::nullopt);
  const uint32_t rows = std::max(chunks, 1u);  // an empty list is one empty row, so that its key is there
  for (uint32_t chunk = rows; chunk < stored.chunks; ++chunk) put(key, static_cast<int32_t>(chunk), std::nullopt);
  stored = {.current = true, .chunks = rows, .leftovers = {}};
}

bool SaveFile::commit() {
  if (!counted_ && writes()) {
    addPending(countKey, wholeRow, static_cast<int64_t>(rows_.size()));
    counted_ = true;
  }
  if (pending_.empty()) return true;
  if (store_.commit(pending_)) {
    pending_.clear();
    pendingRows_.clear();
    failing_ = false;
    return true;
  }
  if (!failing_) {
    failing_ = true;
    for (Write& write : std::exchange(pending_, {})) addPending(write.key, write.chunk, std::move(write.value));
  }
  return false;
}

bool SaveFile::keepSnapshot(SnapshotKind kind, const GameState& state, Date now, std::string_view spared) {
  return !writes() || (commit() && backbeat::keepSnapshot(store_, kind, state, now, spared));
}

SnapshotPlan SaveFile::planSnapshot(SnapshotKind kind, const GameState& state, std::string_view spared) const {
  return writes() ? backbeat::planSnapshot(store_, kind, state, spared) : SnapshotPlan();
}

std::vector<std::string> differencesFromStore(const GameState& state, Store& store) {
  GameState stored;
  Loader loader(stored);
  const bool readable = loader.run(store);
  std::vector<std::string> different = loader.damaged;
  const auto add = [&](std::string_view key, bool differs) {
    const bool isNew = std::find(different.begin(), different.end(), key) == different.end();
    if ((differs || !readable) && isNew) different.emplace_back(key);
  };
  const auto storedLists = listsOf(std::as_const(stored));
  const auto lists = listsOf(state);
  for (size_t i = 0; i < lists.size(); ++i) add(lists[i].key, !lists[i].list.holdsSame(storedLists[i].list));
  for (const Scalar& scalar : scalars) {
    if (scalar.loading == Loading::writeOnly) continue;
    const auto differs = [&](auto member) { return state.*member != stored.*member; };
    add(scalar.key, std::visit(differs, scalar.member));
  }
  if (different.empty() && loader.isMiscounted()) different.emplace_back(countKey);
  return different;
}

}  // namespace backbeat
