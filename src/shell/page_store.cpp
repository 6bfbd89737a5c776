#include "shell/page_store.h"

#include <bit>
#include <limits>

namespace backbeat {
namespace {

constexpr std::string_view quarantinePrefix = "quarantine/";

// Chunk numbers that make a write of a batch an order to the page; its key is the name of a copy.
constexpr int32_t keepCopy = -10;
constexpr int32_t forgetCopy = -11;

constexpr char integerTag = 'i';
constexpr char doubleTag = 'd';
constexpr char objectTag = 'o';

void putLittleEndian(Bytes& out, uint64_t number, size_t width) {
  for (size_t i = 0; i < width; ++i) out.push_back(static_cast<char>(number >> (8 * i)));
}

Bytes packValue(const Value& value) {
  Bytes out;
  if (const auto* whole = std::get_if<int64_t>(&value)) {
    out.push_back(integerTag);
    putLittleEndian(out, static_cast<uint64_t>(*whole), 8);
  } else if (const auto* real = std::get_if<double>(&value)) {
    out.push_back(doubleTag);
    putLittleEndian(out, std::bit_cast<uint64_t>(*real), 8);
  } else {
    const Bytes& object = std::get<Bytes>(value);
    out.reserve(object.size() + 1);
    out.push_back(objectTag);
    out.append(object);
  }
  return out;
}

/// Takes a row apart from its head on; `ok` turns false, for good, when there is less than asked for.
class RowReader {
 public:
  explicit RowReader(std::string_view row) : left_(row) {}

  uint64_t number(size_t width) {
    uint64_t result = 0;
    const std::string_view digits = bytes(width);
    for (size_t i = 0; i < digits.size(); ++i) result |= uint64_t{static_cast<uint8_t>(digits[i])} << (8 * i);
    return result;
  }
  std::string_view bytes(uint64_t count) {
    if (count > left_.size()) ok = false;
    if (!ok) return {};
    const std::string_view head = left_.substr(0, static_cast<size_t>(count));
    left_.remove_prefix(head.size());
    return head;
  }
  bool atEnd() const { return ok && left_.empty(); }

  bool ok = true;

 private:
  std::string_view left_;
};

std::optional<Value> unpackValue(std::string_view bytes) {
  RowReader reader(bytes);
  const std::string_view tag = reader.bytes(1);
  if (tag.empty()) return {};
  if (tag[0] == objectTag) return Value(Bytes(bytes.substr(1)));
  const uint64_t bits = reader.number(8);
  if (!reader.atEnd()) return {};
  if (tag[0] == integerTag) return Value(static_cast<int64_t>(bits));
  if (tag[0] == doubleTag) return Value(std::bit_cast<double>(bits));
  return {};
}

}  // namespace

bool PageStore::addRow(std::string_view row) {
  RowReader reader(row);
  const std::string_view key = reader.bytes(reader.number(4));
  const auto chunk = static_cast<int32_t>(static_cast<uint32_t>(reader.number(4)));
  const bool isWrite = reader.number(1) == 0;
  std::optional<Value> value = unpackValue(reader.bytes(reader.number(4)));
  if (!reader.atEnd() || !isWrite || !value) return false;
  rows_.insert_or_assign({std::string(key), chunk}, std::move(*value));
  return true;
}

Bytes PageStore::takeBatch() { return std::exchange(batch_, {}); }

bool PageStore::commit(std::span<const Write> writes) {
  for (const Write& write : writes) {
    const Bytes value = write.value ? packValue(*write.value) : Bytes();
    putLittleEndian(batch_, write.key.size(), 4);
    batch_.append(write.key);
    putLittleEndian(batch_, static_cast<uint32_t>(write.chunk), 4);
    batch_.push_back(write.value ? 0 : 1);
    putLittleEndian(batch_, value.size(), 4);
    batch_.append(value);
  }
  return true;
}

bool PageStore::visitRows(const std::function<void(std::string_view, int32_t, const Value&)>& visit) {
  for (const auto& [row, value] : rows_) {
    if (!row.first.starts_with(quarantinePrefix)) visit(row.first, row.second, value);
  }
  return true;
}

void PageStore::quarantine(std::string_view key) {
  std::vector<Write> writes;
  const auto first = rows_.lower_bound({std::string(key), std::numeric_limits<int32_t>::min()});
  auto last = first;
  for (; last != rows_.end() && last->first.first == key; ++last) {
    writes.push_back({last->first.first, last->first.second, std::nullopt});
    writes.push_back({std::string(quarantinePrefix) + std::string(key), last->first.second, std::move(last->second)});
  }
  rows_.erase(first, last);
  commit(writes);
}

bool PageStore::keepSnapshot(std::string_view name) {
  if (!snapshots_.emplace(name).second) return false;
  const Write order{std::string(name), keepCopy, std::nullopt};
  return commit({&order, 1});
}

void PageStore::dropSnapshot(std::string_view name) {
  const auto found = snapshots_.find(name);
  if (found == snapshots_.end()) return;
  const Write order{*found, forgetCopy, std::nullopt};
  snapshots_.erase(found);
  commit({&order, 1});
}

}  // namespace backbeat
