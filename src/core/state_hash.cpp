#include <bit>
#include <cmath>

#include "core/save_file.h"
#include "core/value_type.h"

namespace backbeat {
namespace {

using Kind = ValueType::Kind;

class Hasher {
 public:
  void add(uint64_t word) {
    hash_ = (hash_ ^ word) * 0x9E3779B97F4A7C15u;
    hash_ ^= hash_ >> 32;
  }
  void add(int64_t number) { add(static_cast<uint64_t>(number)); }
  void add(bool flag) { add(uint64_t{flag}); }
  void add(double number) {
    // Which bits a NaN gets is the processor's choice.
    add(std::isnan(number) ? uint64_t{0x7FF8} << 48 : std::bit_cast<uint64_t>(number));
  }
  void add(Date date) { add(date.seconds); }
  void add(std::string_view text) {
    add(uint64_t{text.size()});
    while (!text.empty()) {
      uint64_t word = 0;
      const std::string_view head = text.substr(0, 8);
      for (size_t i = 0; i < head.size(); ++i) word |= uint64_t{static_cast<uint8_t>(head[i])} << (8 * i);
      add(word);
      text.remove_prefix(head.size());
    }
  }
  void add(const std::string& text) { add(std::string_view(text)); }
  template <class T>
  void add(const std::vector<T>& items) {
    add(typeOf<std::vector<T>>(), &items);
  }
  void add(const std::map<std::string, std::string>& texts) {
    add(uint64_t{texts.size()});
    for (const auto& [key, text] : texts) {
      add(key);
      add(text);
    }
  }

  void add(const ValueType& type, const void* value) {
    switch (type.kind) {
      case Kind::flag: return add(*static_cast<const bool*>(value));
      case Kind::integer: return add(*static_cast<const int64_t*>(value));
      case Kind::real: return add(*static_cast<const double*>(value));
      case Kind::date: return add(*static_cast<const Date*>(value));
      case Kind::text: return add(*static_cast<const std::string*>(value));
      case Kind::texts: return add(*static_cast<const std::map<std::string, std::string>*>(value));
      case Kind::list: return addItems(type, value);
      case Kind::record: break;
    }
    for (const FieldType& field : type.fields) add(field.type, static_cast<const char*>(value) + field.offset);
  }

  uint64_t result() const { return hash_; }

 private:
  void addItems(const ValueType& type, const void* list) {
    const size_t count = type.count(list);
    const char* item = static_cast<const char*>(type.items(list));
    add(uint64_t{count});
    for (size_t i = 0; i < count; ++i, item += type.item->size) add(*type.item, item);
  }

  uint64_t hash_ = 0;
};

template <class Wanted>
uint64_t hashOf(const GameState& state, const Wanted& wanted) {
  Hasher hasher;
  for (const Scalar& scalar : scalars) {
    if (!wanted(scalar)) continue;
    hasher.add(scalar.key);
    std::visit([&](auto member) { hasher.add(state.*member); }, scalar.member);
  }
  for (const auto& [key, list] : listsOf(state)) {
    hasher.add(key);
    const std::vector<const void*> records = list.records();
    hasher.add(uint64_t{records.size()});
    for (const void* record : records) hasher.add(list.type(), record);
  }
  return hasher.result();
}

}  // namespace

uint64_t stateHash(const GameState& state) {
  return hashOf(state, [](const Scalar&) { return true; });
}

uint64_t careerHash(const GameState& state) {
  return hashOf(state, [](const Scalar& scalar) { return scalar.loading != Loading::writeOnly; });
}

}  // namespace backbeat
