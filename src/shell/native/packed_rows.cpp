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

RowPacker::RowPacker() : packed_(headSize, '\0'), works_(deflateInit(&stream_, quick) == Z_OK) {}

RowPacker::~RowPacker() { deflateEnd(&stream_); }

void RowPacker::add(const Write& row) {
  plain_.clear();
  appendRow(plain_, row);
  squeeze(plain_, Z_NO_FLUSH);
}

Bytes RowPacker::finish() {
  squeeze({}, Z_FINISH);
  if (!works_) return {};
  for (size_t i = 0; i < headSize; ++i) packed_[i] = static_cast<char>(stream_.total_in >> (8 * i));
  return std::move(packed_);
}

void RowPacker::squeeze(std::string_view plain, int flush) {
  constexpr size_t step = 1 << 16;
  stream_.next_in = const_cast<Bytef*>(reinterpret_cast<const Bytef*>(plain.data()));  // zlib only reads it
  stream_.avail_in = static_cast<uInt>(plain.size());
  for (bool isMore = works_; isMore; isMore = works_ && stream_.avail_out == 0) {
    const size_t full = packed_.size();
    packed_.resize(full + step);
    stream_.next_out = reinterpret_cast<Bytef*>(packed_.data() + full);
    stream_.avail_out = step;
    works_ = deflate(&stream_, flush) != Z_STREAM_ERROR;
    packed_.resize(full + step - stream_.avail_out);
  }
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
