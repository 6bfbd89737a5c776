#include "shell/row_bytes.h"

#include <bit>

#include "core/row_check.h"

namespace backbeat {
namespace {

// What stands in front of a value. Older versions had letters, and no check behind them; no flipped bit turns a digit
// into one of them.
constexpr std::string_view tags = "123";
constexpr std::string_view uncheckedTags = "ido";
constexpr char objectTag = tags[2];
constexpr size_t numberWidth = 8;

void putLittleEndian(Bytes& out, uint64_t number, size_t width) {
  for (size_t i = 0; i < width; ++i) out.push_back(static_cast<char>(number >> (8 * i)));
}

Bytes bytesOf(uint64_t number) {
  Bytes out;
  putLittleEndian(out, number, numberWidth);
  return out;
}

void packChecked(Bytes& out, const Write& row, char tag, std::string_view bytes) {
  putLittleEndian(out, 1 + numberWidth + bytes.size(), 4);
  out.push_back(tag);
  putLittleEndian(out, rowCheck(row.key, row.chunk, tag, bytes), numberWidth);
  out.append(bytes);
}

void packValue(Bytes& out, const Write& row) {
  const Value& value = *row.value;
  if (const auto* whole = std::get_if<int64_t>(&value)) {
    packChecked(out, row, tags[0], bytesOf(static_cast<uint64_t>(*whole)));
  } else if (const auto* real = std::get_if<double>(&value)) {
    packChecked(out, row, tags[1], bytesOf(std::bit_cast<uint64_t>(*real)));
  } else if (const auto* object = std::get_if<Bytes>(&value)) {
    packChecked(out, row, objectTag, *object);
  } else {
    const Bytes& found = std::get<DamagedValue>(value).found;
    putLittleEndian(out, found.size(), 4);
    out.append(found);
  }
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

/// The value of a row, damaged where its check says so; nothing when the bytes are no value.
std::optional<Value> unpackValue(const Write& row, std::string_view value) {
  RowReader reader(value);
  char tag = reader.bytes(1).empty() ? '\0' : value[0];
  if (tags.find(tag) != tags.npos) {
    const uint64_t check = reader.number(numberWidth);
    if (!reader.ok || check != rowCheck(row.key, row.chunk, tag, reader.left())) return DamagedValue{Bytes(value)};
  } else if (const size_t kind = uncheckedTags.find(tag); kind != uncheckedTags.npos) {
    tag = tags[kind];
  } else {
    return {};
  }
  if (tag == objectTag) return Value(Bytes(reader.left()));
  const uint64_t bits = reader.number(numberWidth);
  if (!reader.atEnd()) return {};
  return tag == tags[0] ? Value(static_cast<int64_t>(bits)) : Value(std::bit_cast<double>(bits));
}

}  // namespace

void appendRow(Bytes& out, const Write& write) {
  putLittleEndian(out, write.key.size(), 4);
  out.append(write.key);
  putLittleEndian(out, static_cast<uint32_t>(write.chunk), 4);
  out.push_back(write.value ? 0 : 1);
  write.value ? packValue(out, write) : putLittleEndian(out, 0, 4);
}

std::optional<Write> takeRow(std::string_view& rows) {
  RowReader reader(rows);
  Write write;
  write.key = reader.bytes(reader.number(4));
  write.chunk = static_cast<int32_t>(static_cast<uint32_t>(reader.number(4)));
  const bool isWrite = reader.number(1) == 0;
  const std::string_view value = reader.bytes(reader.number(4));
  if (isWrite && reader.ok) write.value = unpackValue(write, value);
  if (!reader.ok || (isWrite && !write.value)) return {};
  rows = reader.left();
  return write;
}

bool isChecked(std::string_view row) {
  RowReader reader(row);
  constexpr size_t betweenKeyAndValue = 4 + 1 + 4;
  reader.bytes(reader.number(4) + betweenKeyAndValue);
  const std::string_view tag = reader.bytes(1);
  return !tag.empty() && tags.find(tag) != tags.npos;
}

}  // namespace backbeat
