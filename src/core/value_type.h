// What the field tables tell, as data: reading, writing, hashing, comparing and copying walk it, and so are code once
// and not once a record.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <new>
#include <span>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>
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

/// No record type's key lies there.
inline constexpr size_t noKey = ~size_t{0};

/// The type of a stored value. There is one object for each type; take it from `typeOf`.
struct ValueType {
  /// texts: a map from text to text. list: a vector of `item`. record: a struct with a field table.
  enum class Kind { flag, integer, real, date, text, texts, list, record };

  Kind kind;
  size_t size;  ///< bytes in memory

  // Of a record.
  std::vector<FieldType> fields = {};              ///< in the order of its table
  size_t historyKey = noKey;                       ///< bytes from the beginning of the record
  size_t groupKey = noKey;                         ///< the same
  void (*make)(void* place) = nullptr;             ///< a new one in raw memory, on its defaults
  void (*take)(void* place, void* old) = nullptr;  ///< a new one in raw memory out of an old one, which is to end next
  void (*end)(void* record) = nullptr;             ///< leaves raw memory

  // Of a list.
  const ValueType* item = nullptr;
  size_t (*count)(const void* list) = nullptr;
  const void* (*items)(const void* list) = nullptr;    ///< the first of them; they lie `item->size` apart
  void* (*add)(void* list) = nullptr;                  ///< one more item, on its defaults
  void (*shrink)(void* list, size_t count) = nullptr;  ///< down to so many
};

/// Whether two values of that type are equal, member by member.
bool sameValue(const ValueType& type, const void* a, const void* b);

/// Gives the value `to` what `from` holds, both of that type.
void copyValue(const ValueType& type, void* to, const void* from);

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

/// Fills the record's table from what each field brings.
void addFields(ValueType& record, std::span<const std::string_view> keys, std::span<const size_t> offsets,
               std::span<const ValueType& (*const)()> types);

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
          .count = [](const void* list) { return static_cast<const List*>(list)->size(); },
          .items = [](const void* list) { return static_cast<const void*>(static_cast<const List*>(list)->data()); },
          .add = [](void* list) { return static_cast<void*>(&static_cast<List*>(list)->emplace_back()); },
          .shrink = [](void* list, size_t count) { static_cast<List*>(list)->resize(count); }};
}

/// The table's parts are constants, so that nearly nothing of this is code of each record.
template <class T>
ValueType makeRecord() {
  static_assert(fieldCount<T> <= maxFields);
  static_assert(alignof(T) <= alignof(std::max_align_t));
  static constexpr auto keys = fieldsOf<T>([](const auto&... field) { return std::array{field.key...}; });
  static constexpr auto members = fieldsOf<T>([](const auto&... field) { return std::tuple{field.member...}; });
  static constexpr auto types =
      fieldsOf<T>([]<class... Values>(const Field<T, Values>&...) { return std::array{&typeOf<Values>...}; });
  const T record{};
  const auto offsets =
      std::apply([&](auto... member) { return std::array{bytesBetween(&record, &(record.*member))...}; }, members);
  ValueType type{.kind = ValueType::Kind::record,
                 .size = sizeof(T),
                 .make = [](void* place) { new (place) T(); },
                 .take = [](void* place, void* old) { new (place) T(std::move(*static_cast<T*>(old))); },
                 .end = [](void* old) { static_cast<T*>(old)->~T(); }};
  addFields(type, keys, offsets, types);
  if constexpr (historyKeyOf<T> != nullptr) type.historyKey = bytesBetween(&record, &(record.*historyKeyOf<T>));
  if constexpr (groupKeyOf<T> != nullptr) type.groupKey = bytesBetween(&record, &(record.*groupKeyOf<T>));
  return type;
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
