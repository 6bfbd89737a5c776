// What the words of a screen are made of, as data: whoever writes, searches or checks a view walks this, and so is code
// once and not once a word.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

namespace backbeat {

struct ViewType;

/// One member of a word, under its own name.
struct ViewField {
  std::string_view name;
  const void* standard;  ///< the member of `ViewType::standard`: what it is when nobody sets it
  const ViewType* type;
};

/// The type of a member. There is one object for each type: `viewType`.
struct ViewType {
  /// name: an enumeration. block: one of several words, told apart by `blockKinds`.
  enum class Kind { flag, integer, real, text, name, price, optional, list, record, block };
  struct Items {
    const void* first = nullptr;  ///< they lie `item->size` apart
    size_t count = 0;
  };

  Kind kind;
  size_t size;                                   ///< bytes in memory
  std::span<const ViewField> fields = {};        ///< of a record
  const void* standard = nullptr;                ///< a record as it is when nobody sets anything
  std::span<const std::string_view> names = {};  ///< of an enumeration, in its order
  const ViewType* item = nullptr;                ///< what a list or an optional holds
  Items (*items)(const void* holder) = nullptr;  ///< all that it holds

  /// One of the items that are held.
  const void* itemAt(Items held, size_t index) const {
    return static_cast<const char*>(held.first) + index * item->size;
  }
  /// Where the member of a record lies.
  const void* valueOf(const ViewField& field, const void* owner) const {
    return static_cast<const char*>(owner) +
           (static_cast<const char*>(field.standard) - static_cast<const char*>(standard));
  }
};

/// The names of an enumeration, in its order. Specialised beside the tables.
template <class E>
inline constexpr auto viewNames = nullptr;

/// The table of a word, in the order of its declaration. Specialised beside the others.
template <class T>
inline constexpr auto viewFields = nullptr;

namespace view_type {

template <class T>
inline constexpr bool isList = false;
template <class T>
inline constexpr bool isList<std::vector<T>> = true;

template <class T>
inline constexpr bool isOptional = false;
template <class T>
inline constexpr bool isOptional<std::optional<T>> = true;

/// An untouched T that is never destroyed.
template <class T>
union Standard {
  T value;
  constexpr Standard() : value{} {}
  ~Standard() {}
};
template <class T>
inline const Standard<T> standard;

template <class T>
constexpr ViewType make();

}  // namespace view_type

template <class T>
inline constexpr ViewType viewType = view_type::make<T>();

namespace view_type {

struct Anything {
  template <class T>
  operator T() const;
};

/// How many members a word has: what it can be begun with.
template <class T, class... Taken>
consteval size_t memberCount() {
  if constexpr (requires { T{Taken{}..., Anything{}}; }) return memberCount<T, Taken..., Anything>();
  return sizeof...(Taken);
}

template <class T>
constexpr ViewType make() {
  using enum ViewType::Kind;
  using Items = ViewType::Items;
  if constexpr (std::is_same_v<T, bool>) {
    return {.kind = flag, .size = sizeof(T)};
  } else if constexpr (std::is_same_v<T, int64_t>) {
    return {.kind = integer, .size = sizeof(T)};
  } else if constexpr (std::is_same_v<T, double>) {
    return {.kind = real, .size = sizeof(T)};
  } else if constexpr (std::is_same_v<T, std::string>) {
    return {.kind = text, .size = sizeof(T)};
  } else if constexpr (std::is_enum_v<T>) {
    static_assert(sizeof(T) == sizeof(int));
    return {.kind = name, .size = sizeof(T), .names = viewNames<T>};
  } else if constexpr (isOptional<T>) {
    return {.kind = optional,
            .size = sizeof(T),
            .item = &viewType<typename T::value_type>,
            .items = [](const void* holder) {
              const T& held = *static_cast<const T*>(holder);
              return held ? Items{&*held, 1} : Items{};
            }};
  } else if constexpr (isList<T>) {
    return {
        .kind = list, .size = sizeof(T), .item = &viewType<typename T::value_type>, .items = [](const void* holder) {
          const T& held = *static_cast<const T*>(holder);
          return Items{held.data(), held.size()};
        }};
  } else {
    static_assert(viewFields<T>.size() == memberCount<T>(), "the table lacks a member");
    return {.kind = record, .size = sizeof(T), .fields = viewFields<T>, .standard = &standard<T>.value};
  }
}

}  // namespace view_type

/// An entry of a table.
template <class Owner, class Value>
constexpr ViewField viewField(std::string_view name, Value Owner::*member) {
  return {name, &(view_type::standard<Owner>.value.*member), &viewType<Value>};
}

}  // namespace backbeat
