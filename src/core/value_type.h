// What the field tables tell, as data: reading, writing and hashing walk it, and so are code once and not once a
// record.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include "core/fields.h"

namespace backbeat {

struct ValueType;

/// More fields than this no record has.
inline constexpr size_t maxFields = 128;

/// One field of a record: where its value lies, and of which type that is.
struct FieldType {
  std::string_view key;
  size_t offset;  ///< bytes from the beginning of the record
  const ValueType& type;
};

/// The type of a stored value. There is one object for each type; take it from `typeOf`.
struct ValueType {
  /// texts: a map from text to text. list: a vector of `item`. record: a struct with a field table.
  enum class Kind { flag, integer, real, date, text, texts, list, record };

  Kind kind;
  size_t size;                                ///< bytes in memory
  std::vector<FieldType> fields = {};         ///< of a record, in the order of its table
  const ValueType* item = nullptr;            ///< what a list holds; the following functions are a list's, too
  std::shared_ptr<void> (*make)() = nullptr;  ///< an empty one
  size_t (*count)(const void* list) = nullptr;
  const void* (*items)(const void* list) = nullptr;    ///< the first of them; they lie `item->size` apart
  void* (*add)(void* list) = nullptr;                  ///< one more item, on its defaults
  void (*shrink)(void* list, size_t count) = nullptr;  ///< down to so many
};

namespace value_type {

template <class T>
inline constexpr bool isVector = false;
template <class T>
inline constexpr bool isVector<std::vector<T>> = true;

template <class T>
ValueType make();

inline size_t bytesBetween(const void* from, const void* to) {
  return static_cast<size_t>(static_cast<const char*>(to) - static_cast<const char*>(from));
}

}  // namespace value_type

/// The type T as data: bool, int64_t, double, Date, std::string, a map of texts, a record, or a vector of these.
template <class T>
const ValueType& typeOf() {
  static const ValueType type = value_type::make<T>();
  return type;
}

namespace value_type {

template <class T>
ValueType makeList() {
  using List = std::vector<T>;
  return {.kind = ValueType::Kind::list,
          .size = sizeof(List),
          .item = &typeOf<T>(),
          .make = [] { return std::shared_ptr<void>(std::make_shared<List>()); },
          .count = [](const void* list) { return static_cast<const List*>(list)->size(); },
          .items = [](const void* list) { return static_cast<const void*>(static_cast<const List*>(list)->data()); },
          .add = [](void* list) { return static_cast<void*>(&static_cast<List*>(list)->emplace_back()); },
          .shrink = [](void* list, size_t count) { static_cast<List*>(list)->resize(count); }};
}

template <class T>
ValueType makeRecord() {
  static_assert(fieldCount<T> <= maxFields);
  const T record{};
  const auto field = [&]<class Value>(const Field<T, Value>& entry) {
    return FieldType{entry.key, bytesBetween(&record, &(record.*entry.member)), typeOf<Value>()};
  };
  const auto fields = [&](const auto&... entries) { return std::vector<FieldType>{field(entries)...}; };
  return {.kind = ValueType::Kind::record, .size = sizeof(T), .fields = fieldsOf<T>(fields)};
}

template <class T>
ValueType make() {
  using enum ValueType::Kind;
  constexpr bool isTexts = std::is_same_v<T, std::map<std::string, std::string>>;
  if constexpr (Record<T>) {
    return makeRecord<T>();
  } else if constexpr (isVector<T>) {
    return makeList<typename T::value_type>();
  } else if constexpr (std::is_same_v<T, bool>) {
    return {.kind = flag, .size = sizeof(T)};
  } else if constexpr (std::is_same_v<T, int64_t>) {
    return {.kind = integer, .size = sizeof(T)};
  } else if constexpr (std::is_same_v<T, double>) {
    return {.kind = real, .size = sizeof(T)};
  } else if constexpr (std::is_same_v<T, Date>) {
    return {.kind = date, .size = sizeof(T)};
  } else if constexpr (std::is_same_v<T, std::string>) {
    return {.kind = text, .size = sizeof(T)};
  } else {
    static_assert(isTexts, "nobody says how such a value is stored");
    return {.kind = texts, .size = sizeof(T)};
  }
}

}  // namespace value_type
}  // namespace backbeat
