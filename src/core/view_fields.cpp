#include "core/view_fields.h"

#include <cstring>

namespace backbeat {

namespace {

template <class T>
const T& as(const void* value) {
  return *static_cast<const T*>(value);
}

int numberOf(const void* enumerator) {
  int number = 0;
  std::memcpy(&number, enumerator, sizeof number);
  return number;
}

}  // namespace

std::string_view nameOf(const ViewType& type, const void* value) {
  return type.names[static_cast<size_t>(numberOf(value))];
}

bool saysNothing(const ViewType& type, const void* value, const void* standard) {
  using enum ViewType::Kind;
  switch (type.kind) {
    case flag: return as<bool>(value) == as<bool>(standard);
    case integer: return as<int64_t>(value) == as<int64_t>(standard);
    case real: return as<double>(value) == as<double>(standard);
    case text: return as<std::string>(value).empty();
    case name: return numberOf(value) == numberOf(standard);
    case price: return as<Price>(value) == Price{};
    case list: return type.items(value).count == 0;
    case optional: {
      const ViewType::Items held = type.items(value);
      return held.count == 0 || (type.item->kind == price && saysNothing(*type.item, held.first, nullptr));
    }
    case record:
      for (const ViewField& field : type.fields) {
        if (!saysNothing(*field.type, type.valueOf(field, value), field.standard)) return false;
      }
      return true;
    case block: return false;
  }
  return false;
}

}  // namespace backbeat
