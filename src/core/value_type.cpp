#include "core/value_type.h"

namespace backbeat {
namespace {

using Kind = ValueType::Kind;

template <class T>
bool same(const void* a, const void* b) {
  return *static_cast<const T*>(a) == *static_cast<const T*>(b);
}

template <class T>
void copy(void* to, const void* from) {
  *static_cast<T*>(to) = *static_cast<const T*>(from);
}

const void* at(const void* first, size_t bytes) { return static_cast<const char*>(first) + bytes; }
void* at(void* first, size_t bytes) { return static_cast<char*>(first) + bytes; }

bool sameItems(const ValueType& list, const void* a, const void* b) {
  const size_t count = list.count(a);
  if (list.count(b) != count) return false;
  for (size_t i = 0; i < count; ++i) {
    const size_t place = i * list.item->size;
    if (!sameValue(*list.item, at(list.items(a), place), at(list.items(b), place))) return false;
  }
  return true;
}

void copyItems(const ValueType& list, void* to, const void* from) {
  list.shrink(to, 0);
  for (size_t i = 0; i < list.count(from); ++i) {
    copyValue(*list.item, list.add(to), at(list.items(from), i * list.item->size));
  }
}

}  // namespace

void value_type::addFields(ValueType& record, std::span<const std::string_view> keys, std::span<const size_t> offsets,
                           std::span<const ValueType& (*const)()> types) {
  record.fields.reserve(keys.size());
  for (size_t i = 0; i < keys.size(); ++i) record.fields.push_back({keys[i], offsets[i], types[i]()});
}

bool sameValue(const ValueType& type, const void* a, const void* b) {
  switch (type.kind) {
    case Kind::flag: return same<bool>(a, b);
    case Kind::integer: return same<int64_t>(a, b);
    case Kind::real: return same<double>(a, b);
    case Kind::date: return same<Date>(a, b);
    case Kind::text: return same<std::string>(a, b);
    case Kind::texts: return same<std::map<std::string, std::string>>(a, b);
    case Kind::list: return sameItems(type, a, b);
    case Kind::record: break;
  }
  for (const FieldType& field : type.fields) {
    if (!sameValue(field.type, at(a, field.offset), at(b, field.offset))) return false;
  }
  return true;
}

void copyValue(const ValueType& type, void* to, const void* from) {
  switch (type.kind) {
    case Kind::flag: return copy<bool>(to, from);
    case Kind::integer: return copy<int64_t>(to, from);
    case Kind::real: return copy<double>(to, from);
    case Kind::date: return copy<Date>(to, from);
    case Kind::text: return copy<std::string>(to, from);
    case Kind::texts: return copy<std::map<std::string, std::string>>(to, from);
    case Kind::list: return copyItems(type, to, from);
    case Kind::record: break;
  }
  for (const FieldType& field : type.fields) copyValue(field.type, at(to, field.offset), at(from, field.offset));
}

}  // namespace backbeat
