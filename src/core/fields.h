// The field table: the one place that says how a record is stored, compared, dumped and reset.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <type_traits>

namespace backbeat {

/// One entry of a field table: the key under which a member is stored. Keys are part of the save; they never change.
template <class Owner, class Value>
struct Field {
  std::string_view key;
  Value Owner::*member;
};

/// The field table of a record type, in the order of its declaration: hands all fields at once to `take`. Specialised
/// beside each record. (A table that is called, not a tuple: whoever does not walk the fields does not pay for them.)
template <class T>
inline constexpr auto fieldsOf = nullptr;

/// A type that has a field table.
template <class T>
concept Record = !std::is_null_pointer_v<std::remove_const_t<decltype(fieldsOf<T>)>>;

/// Calls `visit(field)` for each entry of T's table, in order.
template <class T, class Visit>
constexpr void forEachField(Visit&& visit) {
  fieldsOf<T>([&](const auto&... field) { (visit(field), ...); });
}

/// The member by which a list finds records of a type quickly, however long it is; specialised for the types that need
/// it.
template <class T>
inline constexpr int64_t T::*historyKeyOf = nullptr;

/// The member that records which belong together share, by which a list finds them; specialised likewise.
template <class T>
inline constexpr int64_t T::*groupKeyOf = nullptr;

template <class T>
inline constexpr size_t fieldCount = fieldsOf<T>([](const auto&... field) { return sizeof...(field); });

/// An instant, in seconds since 1970-01-01 00:00 UTC. Stored as a property-list date.
struct Date {
  double seconds = 0;
  friend bool operator==(const Date&, const Date&) = default;
};

}  // namespace backbeat
