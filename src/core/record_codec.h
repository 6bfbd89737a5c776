// Records to and from property lists, along their field tables: an array with one dictionary for each record.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/property_list.h"
#include "core/record_buffer.h"
#include "core/value_type.h"

namespace backbeat {

/// Turns values into the objects of one property list.
class RecordEncoder {
 public:
  using Ref = PropertyListWriter::Ref;

  explicit RecordEncoder(PropertyListWriter& writer) : writer_(writer) {}

  template <class T>
  Ref value(const T& from) {
    return value(typeOf<T>(), &from);
  }

  /// A value of that type.
  Ref value(const ValueType& type, const void* from);

  /// An array of records that lie anywhere.
  Ref records(const ValueType& type, std::span<const void* const> items);

 private:
  using Room = PropertyListWriter::Room;

  /// The record that was written last, and its values.
  struct Before {
    const void* record = nullptr;
    Room values;
  };

  Ref list(const ValueType& type, const void* from);
  Ref texts(const std::map<std::string, std::string>& from);
  Room keysOf(const ValueType& type);
  Ref record(const ValueType& type, Room keys, const void* from, Before& before);

  PropertyListWriter& writer_;
};

/// Turns the objects of one property list back into values. Each value must be of its own kind; a record needs every
/// one of its fields, once. Entries that no field knows are passed over, so that a save survives a field's removal.
///
/// Whatever the bytes say, decoding takes time and memory in proportion to how many they are: everything that is made
/// or looked up is paid from one allowance, and a list that asks for more is refused. A list may name one object over
/// and over, so a few bytes could ask for any amount.
class RecordDecoder {
 public:
  using Ref = PropertyListReader::Ref;

  explicit RecordDecoder(std::string_view propertyList);

  /// The list's root as a value of type T.
  template <class T>
  bool root(T& out) {
    return reader_ && value(reader_->root(), typeOf<T>(), &out);
  }

  /// The entries of the list's root; nothing when it is no dictionary.
  std::optional<PropertyListReader::Entries> rootEntries() const;
  bool isText(Ref ref) const { return reader_->textUnits(ref).has_value(); }
  /// The text of a key; nothing when it is none, or longer than any key of the game.
  std::optional<std::string> keyText(Ref ref) const;

  /// One object of the list as a value of type T; when it is none, `problem()` tells why.
  template <class T>
  bool read(Ref ref, T& out) {
    return read(ref, typeOf<T>(), &out);
  }

  bool read(Ref ref, const ValueType& type, void* out);

  /// An array of the list, its items added to the end of `out`; when it is none, or one item does not fit, `problem()`
  /// tells why and `out` holds no more than before.
  bool readRecords(Ref ref, RecordBuffer& out);

  /// Why the last value was refused, with the way to the place: "entry 3: title is missing".
  const std::string& problem() const { return problem_; }

  /// The same of the list's root.
  bool append(RecordBuffer& out) { return reader_ && readRecords(reader_->root(), out); }

 private:
  /// Which field the key at each place of a dictionary was found to be last time. One property list writes the
  /// dictionaries of one type alike, so that their keys' texts are compared once and not for each record.
  struct KnownKey {
    Ref key;
    size_t field;
  };
  using KnownKeys = std::vector<KnownKey>;

  /// Where the items of an array go as they are read.
  struct Target {
    void* list;
    void* (*add)(void* list);  // one more item
    const ValueType& item;
  };

  bool value(Ref ref, const ValueType& type, void* out);
  bool appendItems(Ref ref, const Target& target);
  bool record(Ref ref, const ValueType& type, KnownKeys& known, void* out);
  bool texts(Ref ref, std::map<std::string, std::string>& out);
  bool text(Ref ref, std::string& out);
  size_t fieldOf(const ValueType& type, Ref key, size_t place, KnownKeys& known);
  bool refuse(std::string_view place, const char* reason);
  bool allow(uint64_t bytes);

  std::optional<PropertyListReader> reader_;
  uint64_t allowance_;  // bytes that decoding may still take; a look-up counts as some
  std::string problem_;
};

/// One value as a whole property list.
template <class T>
Bytes encodeValue(PropertyListWriter& writer, const T& value) {
  return writer.finish(RecordEncoder(writer).value(value));
}

/// The value of a whole property list, or nothing when it holds another kind.
template <class T>
std::optional<T> decodeValue(std::string_view propertyList) {
  std::optional<T> value(std::in_place);
  if (!RecordDecoder(propertyList).root(*value)) value.reset();
  return value;
}

/// All or nothing: the records of a whole property list.
template <Record T>
std::optional<std::vector<T>> decodeRecords(std::string_view propertyList) {
  return decodeValue<std::vector<T>>(propertyList);
}

}  // namespace backbeat
