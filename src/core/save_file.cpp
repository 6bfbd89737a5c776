#include "core/save_file.h"

#include <algorithm>
#include <bit>
#include <cmath>

#include "core/career_check.h"
#include "core/record_codec.h"

namespace backbeat {
namespace {

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

  /// Fills the list; false, and the list is as it was, when its rows are no whole list.
  bool finish() {
    if (stored.leftovers.empty()) return true;
    mended = !damaged_ && mendRecords(places_) > 0;
    const bool whole = !damaged_ && stored.chunks > 0 && list_.restore(std::move(places_), std::move(slots_));
    if (!whole) {
      stored.chunks = 0;
      return false;
    }
    stored.leftovers.clear();
    stored.current = !cutOtherwise_ && !mended;
    return true;
  }

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
    return store.visitRows([&](std::string_view key, int32_t chunk, const Value& value) { take(key, chunk, value); });
  }

  /// Ends the loading; keys of damaged lists, in the order of the table.
  std::vector<std::string> finish() {
    std::vector<std::string> damaged;
    for (const auto& [key, list] : listsOf(state_)) {
      if (!lists_.find(key)->second.finish()) damaged.emplace_back(key);
    }
    return damaged;
  }

  const StoredList& stored(std::string_view key) const { return lists_.find(key)->second.stored; }
  bool mended(std::string_view key) const { return lists_.find(key)->second.mended; }
  std::map<std::string, Bytes, std::less<>> otherObjects;

 private:
  void take(std::string_view key, int32_t chunk, const Value& value) {
    if (const auto list = lists_.find(key); list != lists_.end()) return list->second.take(chunk, value);
    if (chunk != wholeRow) return;
    if (const auto scalar = scalars_.find(key); scalar != scalars_.end()) {
      if (scalar->second->loading == Loading::writeOnly) return;
      std::visit([&](auto member) { loadScalar(state_, member, value); }, scalar->second->member);
    } else if (const auto* object = std::get_if<Bytes>(&value)) {
      otherObjects.emplace(key, *object);
    }
  }

  GameState& state_;
  std::map<std::string_view, ListLoader> lists_;
  std::map<std::string_view, const Scalar*> scalars_;
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
  report.damagedLists = loader.finish();
  lists_.clear();
  for (const auto& [key, list] : listsOf(state)) lists_.emplace(key, loader.stored(key));
  otherObjects_ = std::move(loader.otherObjects);
  for (const std::string& key : report.damagedLists) store_.quarantine(key);
  report.mended = mendScalars(state);
  for (const Scalar& scalar : scalars) {
    const auto& keys = report.mended;
    if (std::find(keys.begin(), keys.end(), scalar.key) != keys.end()) writeScalar(state, scalar);
  }
  for (const auto& [key, list] : listsOf(state)) {
    if (!loader.mended(key)) continue;
    writeList(key, list);
    report.mended.emplace_back(key);
  }
  return report;
}

void SaveFile::put(std::string_view key, int32_t chunk, std::optional<Value> value) {
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
  if (pending_.empty()) return true;
  if (store_.commit(pending_)) {
    pending_.clear();
    pendingRows_.clear();
    failing_ = false;
    return true;
  }
  if (!failing_) {
    failing_ = true;
    for (Write& write : std::exchange(pending_, {})) put(write.key, write.chunk, std::move(write.value));
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
  std::vector<std::string> different = loader.finish();
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
  return different;
}

}  // namespace backbeat
