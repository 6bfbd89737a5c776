// Binary property lists (bplist00), written and read straight between values and bytes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/fields.h"

namespace backbeat {

/// Raw bytes.
using Bytes = std::string;

/// Builds one property list bottom-up: each call adds an object and gives its number; equal keys, texts, numbers and
/// flags share one object. A writer can be used again after `finish`, and keeps its buffers.
class PropertyListWriter {
 public:
  using Ref = uint32_t;

  PropertyListWriter();

  Ref integer(int64_t value);
  Ref real(double value);  ///< kept bit for bit
  Ref boolean(bool value);
  Ref date(Date value);
  /// Stored as ASCII or UTF-16, NUL included. What is not valid UTF-8 is stored as U+FFFD.
  Ref text(std::string_view utf8);
  Ref data(std::string_view bytes);
  Ref array(std::span<const Ref> items);
  /// One value for each key.
  Ref dictionary(std::span<const Ref> keys, std::span<const Ref> values);

  /// Room for the refs of a container: they can be put there one by one, while other objects are added, and several
  /// dictionaries can share their keys.
  struct Room {
    size_t first = 0;
    size_t count = 0;
  };
  Room room(size_t count);
  void put(Room room, size_t i, Ref ref) { refs_[room.first + i] = ref; }
  Ref placed(Room room, size_t i) const { return refs_[room.first + i]; }
  Ref closeArray(Room items);
  Ref closeDictionary(Room keys, Room values);  ///< as many values as keys

  /// The whole file with `root` on top; the writer is empty afterwards.
  Bytes finish(Ref root);

 private:
  struct Container {
    Ref self;
    bool isDictionary;
    Room keys;   // of a dictionary
    Room items;  // or values
  };
  struct KnownNumber {
    uint64_t bits;
    uint32_t round;  // entries of earlier lists count as free
    uint8_t kind;
    Ref ref;
  };
  struct KnownText {
    uint64_t hash;
    size_t start;  // of its UTF-8, in scalars_ when it is ASCII and so stands there as it is, else in textBytes_
    size_t size;
    uint32_t round;
    bool isAscii;
    Ref ref;
  };

  Ref newScalar();
  Ref newContainer(bool isDictionary, Room keys, Room items);
  Room roomFor(std::span<const Ref> refs);
  char* scalarBytes(size_t most);
  Ref number(uint64_t bits, uint8_t kind);
  void growNumbers();
  void growTexts();
  void putMarker(uint8_t kind, size_t count);
  void putBytes(std::string_view bytes);
  void putUtf16(std::string_view utf8);
  size_t containerBytes(size_t refSize) const;
  template <size_t width>
  char* writeContainers(char* file, char* out);
  void forgetObjects();

  Bytes scalars_;  // the file's head, in its first bytes: the magic word and every object that holds no refs
  size_t scalarsSize_;
  std::vector<size_t> offsets_;        // of each object in the file
  std::vector<Container> containers_;  // laid out behind the scalars once the width of a ref is known
  std::vector<Ref> refs_;
  std::vector<KnownNumber> numbers_;  // open addressing, a power of two
  std::vector<KnownText> texts_;      // the same
  size_t numberCount_ = 0;
  size_t textCount_ = 0;
  Bytes textBytes_;
  std::u16string utf16_;
  uint32_t round_ = 1;
};

/// The refs of an array, or of one half of a dictionary, read in place.
class PropertyListRefs {
 public:
  PropertyListRefs() = default;
  PropertyListRefs(const char* bytes, size_t count, uint8_t width) : bytes_(bytes), count_(count), width_(width) {}

  size_t size() const { return count_; }
  /// `i` below `size()`.
  uint64_t operator[](size_t i) const {
    const char* at = bytes_ + i * width_;
    uint64_t ref = 0;
    for (uint8_t byte = 0; byte < width_; ++byte) ref = ref << 8 | static_cast<uint8_t>(at[byte]);
    return ref;
  }

 private:
  const char* bytes_ = nullptr;
  size_t count_ = 0;
  uint8_t width_ = 1;
};

/// Reads one property list in place. Nothing in hostile bytes leads to more than "no": every offset, count and size is
/// checked before it is used, and nothing is followed unless the caller asks, so that no cycle can trap it.
class PropertyListReader {
 public:
  using Ref = uint64_t;

  /// A dictionary's entries: `keys[i]` names `values[i]`.
  struct Entries {
    PropertyListRefs keys;
    PropertyListRefs values;
    size_t size() const { return keys.size(); }
  };

  /// Checks header and trailer; nothing when the bytes are no binary property list. The bytes must outlive the reader.
  static std::optional<PropertyListReader> open(std::string_view bytes);

  Ref root() const { return root_; }
  std::optional<int64_t> integer(Ref) const;  ///< of 1 to 16 bytes; nothing when it fits no 64-bit integer
  std::optional<double> real(Ref) const;      ///< of 4 or 8 bytes
  std::optional<bool> boolean(Ref) const;
  std::optional<Date> date(Ref) const;
  std::optional<std::string> text(Ref) const;  ///< as UTF-8; a lone surrogate becomes U+FFFD
  std::optional<size_t> textUnits(Ref) const;  ///< how many bytes or UTF-16 units a text counts, unread
  std::optional<std::string_view> data(Ref) const;
  std::optional<PropertyListRefs> array(Ref) const;
  std::optional<Entries> dictionary(Ref) const;

 private:
  struct Object {
    uint8_t marker;
    size_t body;  // first byte behind the marker
  };

  explicit PropertyListReader(std::string_view bytes) : bytes_(bytes) {}
  std::optional<Object> object(Ref) const;
  std::optional<std::string_view> counted(const Object&, size_t unit) const;
  std::optional<size_t> count(const Object&, size_t& body) const;

  std::string_view bytes_;
  size_t objectsEnd_ = 0;  // where the offset table begins
  uint64_t objectCount_ = 0;
  Ref root_ = 0;
  uint8_t offsetWidth_ = 1;
  uint8_t refWidth_ = 1;
};

}  // namespace backbeat
