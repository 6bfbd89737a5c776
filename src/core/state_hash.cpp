#include <bit>
#include <cmath>

#include "core/save_file.h"

namespace backbeat {
namespace {

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
  template <Record T>
  void add(const T& record) {
    forEachField<T>([&](const auto& field) { add(record.*field.member); });
  }
  template <class T>
  void add(const std::vector<T>& items) {
    add(uint64_t{items.size()});
    for (const T& item : items) add(item);
  }
  void add(const std::map<std::string, std::string>& texts) {
    add(uint64_t{texts.size()});
    for (const auto& [key, text] : texts) {
      add(key);
      add(text);
    }
  }

  uint64_t result() const { return hash_; }

 private:
  uint64_t hash_ = 0;
};

}  // namespace

uint64_t stateHash(const GameState& state) {
  Hasher hasher;
  for (const Scalar& scalar : scalars) {
    hasher.add(scalar.key);
    std::visit([&](auto member) { hasher.add(state.*member); }, scalar.member);
  }
  forEachField<GameState>([&](const auto& field) {
    hasher.add(field.key);
    hasher.add((state.*field.member).all());
  });
  return hasher.result();
}

}  // namespace backbeat
