#include "shell/row_bytes.h"

#include <bit>

namespace backbeat {
namespace {

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
  std::string_view left() const { return left_; }

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

void appendRow(Bytes& out, const Write& write) {
  const Bytes value = write.value ? packValue(*write.value) : Bytes();
  putLittleEndian(out, write.key.size(), 4);
  out.append(write.key);
  putLittleEndian(out, static_cast<uint32_t>(write.chunk), 4);
  out.push_back(write.value ? 0 : 1);
  putLittleEndian(out, value.size(), 4);
  out.append(value);
}

std::optional<Write> takeRow(std::string_view& rows) {
  RowReader reader(rows);
  Write write;
  write.key = reader.bytes(reader.number(4));
  write.chunk = static_cast<int32_t>(static_cast<uint32_t>(reader.number(4)));
  const bool isWrite = reader.number(1) == 0;
  const std::string_view value = reader.bytes(reader.number(4));
  if (isWrite) write.value = unpackValue(value);
  if (!reader.ok || (isWrite && !write.value)) return {};
  rows = reader.left();
  return write;
}

}  // namespace backbeat
