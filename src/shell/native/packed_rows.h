// A kept copy of a save on a computer: all its rows in one compressed value.
#pragma once

#include <zlib.h>

#include <optional>
#include <vector>

#include "core/store.h"

namespace backbeat {

/// Takes rows one by one, so that a career of a hundred years is never there a second time.
class RowPacker {
 public:
  RowPacker();
  RowPacker(const RowPacker&) = delete;
  RowPacker& operator=(const RowPacker&) = delete;
  ~RowPacker();

  void add(const Write& row);
  /// All of them, in about a fifth of their room, once. "" when there was no memory for it.
  Bytes finish();

 private:
  void squeeze(std::string_view plain, int flush);

  z_stream stream_{};
  Bytes plain_;
  Bytes packed_;
  bool works_ = false;
};

/// The rows again; nothing when a single byte is not what a packer wrote.
std::optional<std::vector<Write>> unpackRows(std::string_view packed);

}  // namespace backbeat
