#include "shell/native/packed_rows.h"

#include <zlib.h>

#include "shell/row_bytes.h"

namespace backbeat {

namespace {

// A New Year must not be felt; the better levels take several times as long for a few percent.
constexpr int quick = 1;

// In front of the compressed bytes: how many they were.
constexpr size_t headSize = 8;
constexpr size_t largest = size_t{1} << 30;

size_t sizeInHead(std::string_view packed) {
  size_t size = 0;
  for (size_t i = headSize; i-- > 0;) size = size << 8 | static_cast<uint8_t>(packed[i]);
  return size;
}

}  // namespace

Bytes packRows(std::span<const Write> rows) {
  Bytes plain;
  for (const Write& row : rows) appendRow(plain, row);
  uLongf size = compressBound(plain.size());
  Bytes packed(headSize + size, '\0');
  for (size_t i = 0; i < headSize; ++i) packed[i] = static_cast<char>(plain.size() >> (8 * i));
  auto* out = reinterpret_cast<Bytef*>(packed.data() + headSize);
  const auto* in = reinterpret_cast<const Bytef*>(plain.data());
  if (compress2(out, &size, in, plain.size(), quick) != Z_OK) return {};
  packed.resize(headSize + size);
  return packed;
}

std::optional<std::vector<Write>> unpackRows(std::string_view packed) {
  if (packed.size() < headSize || sizeInHead(packed) > largest) return {};
  Bytes plain(sizeInHead(packed), '\0');
  uLongf size = plain.size();
  const auto* in = reinterpret_cast<const Bytef*>(packed.data() + headSize);
  // zlib looks at a checksum of its own at the end.
  const int code = uncompress(reinterpret_cast<Bytef*>(plain.data()), &size, in, packed.size() - headSize);
  if (code != Z_OK || size != plain.size()) return {};
  std::vector<Write> rows;
  for (std::string_view left = plain; !left.empty();) {
    auto row = takeRow(left);
    if (!row || !row->value || std::holds_alternative<DamagedValue>(*row->value)) return {};
    rows.push_back(std::move(*row));
  }
  return rows;
}

}  // namespace backbeat
