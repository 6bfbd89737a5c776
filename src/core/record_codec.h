// Records to and from property lists, straight over their field tables: an array with one dictionary for each record.
#pragma once

#include <array>
#include <bitset>
#include <cstdint>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/fields.h"
#include "core/property_list.h"

namespace backbeat {

template <class T>
inline constexpr size_t fieldCount = fieldsOf<T>([](const auto&... field) { return sizeof...(field); });

/// Turns values into the objects of one property list.
class RecordEncoder {
 public:
  using Ref = PropertyListWriter::Ref;

  explicit RecordEncoder(PropertyListWriter& writer) : writer_(writer) {}

  Ref value(bool flag) { return writer_.boolean(flag); }
  Ref value(int64_t number) { return writer_.integer(number); }
  Ref value(double number) { return writer_.real(number); }
  Ref value(Date date) { return writer_.date(date); }
  Ref value(const std::string& text) { return writer_.text(text); }

  template <class T>
  Ref value(const std::vector<T>& items) {
    const auto itself = [](const T& item) -> const T& { return item; };
    return array(items, itself);
  }

  Ref value(const std::map<std::string, std::string>& texts) {
    std::vector<Ref> keys;
    std::vector<Ref> values;
    for (const auto& [key, text] : texts) {
      keys.push_back(writer_.text(key));
      values.push_back(writer_.text(text));
    }
    return writer_.dictionary(keys, values);
  }

  template <class T>
  Ref records(std::span<const T* const> items) {
    return array(items, [](const T* item) -> const T& { return *item; });
  }

 private:
  template <class Items, class Get>
  Ref array(const Items& items, const Get& get) {
    using T = std::decay_t<decltype(get(items[0]))>;
    const size_t first = pending_.size();
    if constexpr (Record<T>) {
      const std::array<Ref, fieldCount<T>> keys = keysOf<T>();
      for (const auto& item : items) pending_.push_back(record(keys, get(item)));
    } else {
      for (const auto& item : items) pending_.push_back(value(get(item)));
    }
    const Ref ref = writer_.array(std::span(pending_).subspan(first));
    pending_.resize(first);
    return ref;
  }

  template <class T>
  std::array<Ref, fieldCount<T>> keysOf() {
    return fieldsOf<T>([&](const auto&... field) { return std::array{writer_.text(field.key)...}; });
  }

  template <class T>
  Ref record(const std::array<Ref, fieldCount<T>>& keys, const T& from) {
    const std::array<Ref, fieldCount<T>> values =
        fieldsOf<T>([&](const auto&... field) { return std::array{value(from.*field.member)...}; });
    return writer_.dictionary(keys, values);
  }

  PropertyListWriter& writer_;
  std::vector<Ref> pending_;  // items of the arrays under construction, the inner ones behind the outer ones
};

/// Turns the objects of one property list back into values. Each value must be of its own kind; a record needs every
/// one of its fields, once. Entries that no field knows are passed over, so that a save survives a field's removal.
class RecordDecoder {
 public:
  using Ref = PropertyListReader::Ref;

  explicit RecordDecoder(std::string_view propertyList)
      : reader_(PropertyListReader::open(propertyList)), allowance_(32 * uint64_t{propertyList.size()} + (64 << 20)) {}

  /// The list's root as a value of type T.
  template <class T>
  bool root(T& out) {
    return reader_ && value(reader_->root(), out);
  }

  /// The entries of the list's root; nothing when it is no dictionary.
  std::optional<PropertyListReader::Entries> rootEntries() const {
    return reader_ ? reader_->dictionary(reader_->root()) : std::nullopt;
  }
  std::optional<std::string> keyText(Ref ref) const { return reader_->text(ref); }

  /// One object of the list as a value of type T; when it is none, `problem()` tells why.
  template <class T>
  bool read(Ref ref, T& out) {
    problem_.clear();
    return value(ref, out) || (note("is of another kind or does not fit"), false);
  }

  /// Why the last value was refused, with the way to the place: "entry 3: title is missing".
  const std::string& problem() const { return problem_; }

  /// The list's root, an array of records, added to the end of `out`, which is cut back when one of them fails.
  template <Record T>
  bool append(std::vector<T>& out) {
    const size_t before = out.size();
    const auto items = reader_ ? reader_->array(reader_->root()) : std::nullopt;
    if (items && appendItems(*items, out)) return true;
    out.resize(before);
    return false;
  }

 private:
  /// Which field the key at each place of a dictionary was found to be last time. One property list writes the
  /// dictionaries of one type alike, so that their keys' texts are compared once and not for each record.
  template <class T>
  struct KnownKeys {
    struct Entry {
      Ref key;
      size_t field;
    };
    std::vector<Entry> entries;
  };

  bool value(Ref ref, bool& out) { return take(reader_->boolean(ref), out); }
  bool value(Ref ref, int64_t& out) { return take(reader_->integer(ref), out); }
  bool value(Ref ref, double& out) { return take(reader_->real(ref), out); }
  bool value(Ref ref, Date& out) { return take(reader_->date(ref), out); }
  bool value(Ref ref, std::string& out) { return take(reader_->text(ref), out) && allow(out.size()); }

  template <class T>
  bool value(Ref ref, std::vector<T>& out) {
    const auto items = reader_->array(ref);
    out.clear();
    return items && appendItems(*items, out);
  }

  bool value(Ref ref, std::map<std::string, std::string>& out) {
    const auto entries = reader_->dictionary(ref);
    if (!entries) return false;
    for (size_t i = 0; i < entries->size(); ++i) {
      std::string key;
      std::string text;
      if (!value(entries->keys[i], key) || !value(entries->values[i], text)) return false;
      if (!out.emplace(std::move(key), std::move(text)).second) return false;
    }
    return true;
  }

  // No `reserve`: chunk after chunk goes onto the same vector, and exact growth would copy it each time.
  template <class T>
  bool appendItems(const PropertyListRefs& items, std::vector<T>& out) {
    KnownKeys<T> known;
    for (size_t i = 0; i < items.size(); ++i) {
      if (!allow(sizeof(T))) return false;
      T& item = out.emplace_back();
      bool read = false;
      if constexpr (Record<T>) {
        read = record(items[i], known, item);
      } else {
        read = value(items[i], item);
      }
      if (!read) return refuse("entry " + std::to_string(i + 1), "is of another kind or does not fit");
    }
    return true;
  }

  template <class T>
  bool record(Ref ref, KnownKeys<T>& known, T& out) {
    const auto entries = reader_->dictionary(ref);
    if (!entries || !allow(8 * uint64_t{entries->size()})) return false;
    std::bitset<fieldCount<T>> seen;
    for (size_t i = 0; i < entries->size(); ++i) {
      const size_t field = fieldOf<T>(entries->keys[i], i, known);
      if (field == fieldCount<T>) continue;
      if (seen[field]) return refuse(nameOf<T>(field), "is there twice");
      if (!valueOfField(field, entries->values[i], out)) {
        return refuse(nameOf<T>(field), "is of another kind or does not fit");
      }
      seen[field] = true;
    }
    for (size_t field = 0; field < fieldCount<T>; ++field) {
      if (!seen[field]) return refuse(nameOf<T>(field), "is missing");
    }
    return true;
  }

  template <class T>
  static std::string nameOf(size_t number) {
    return std::string(fieldsOf<T>([&](const auto&... field) { return std::array{field.key...}[number]; }));
  }

  // Puts the place before what is known of the trouble; false for the caller to pass on.
  bool refuse(const std::string& place, const char* otherwise) {
    problem_ = problem_.empty() ? place + " " + otherwise : place + ": " + problem_;
    return false;
  }
  void note(const char* trouble) {
    if (problem_.empty()) problem_ = trouble;
  }

  template <class T>
  bool valueOfField(size_t number, Ref from, T& out) {
    size_t i = 0;
    const auto take = [&](const auto& field) { return i++ != number || value(from, out.*field.member); };
    return fieldsOf<T>([&](const auto&... field) { return (take(field) && ...); });
  }

  // The number of the field of that key, or the count of fields when none has it.
  template <class T>
  size_t fieldOf(Ref key, size_t place, KnownKeys<T>& known) {
    if (place < known.entries.size() && known.entries[place].key == key) return known.entries[place].field;
    size_t field = 0;
    const std::optional<std::string> name = reader_->text(key);
    const auto differs = [&](const auto& candidate) { return name != candidate.key ? (++field, true) : false; };
    fieldsOf<T>([&](const auto&... candidate) { return (differs(candidate) && ...); });
    if (place >= known.entries.size() && place < 2 * fieldCount<T>) known.entries.resize(place + 1, {~Ref{0}, 0});
    if (place < known.entries.size()) known.entries[place] = {key, field};
    return field;
  }

  template <class T>
  static bool take(std::optional<T> found, T& out) {
    if (found) out = std::move(*found);
    return found.has_value();
  }

  // A genuine list never asks for much more than it holds; one that names the same large object over and over does.
  bool allow(uint64_t bytes) {
    if (bytes > allowance_) return false;
    allowance_ -= bytes;
    return true;
  }

  std::optional<PropertyListReader> reader_;
  uint64_t allowance_;  // bytes of memory that decoding may still take
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
  T value{};
  if (!RecordDecoder(propertyList).root(value)) return {};
  return value;
}

/// Records as a whole property list.
template <Record T>
Bytes encodeRecords(PropertyListWriter& writer, std::span<const T* const> records) {
  return writer.finish(RecordEncoder(writer).records(records));
}

/// All or nothing: the records of a whole property list.
template <Record T>
std::optional<std::vector<T>> decodeRecords(std::string_view propertyList) {
  return decodeValue<std::vector<T>>(propertyList);
}

}  // namespace backbeat
