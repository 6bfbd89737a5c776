#include "play/own_values.h"

#include <algorithm>
#include <array>
#include <map>
#include <set>
#include <type_traits>
#include <variant>

#include "core/money.h"

namespace backbeat {

namespace {

bool isSharedByDesign(std::string_view key) {
  static constexpr std::array<std::string_view, 9> parts = {"Id",   "id",     "week",    "Week", "year",
                                                            "Year", "typeOf", "styleOf", "age"};
  return std::any_of(parts.begin(), parts.end(), [&](std::string_view part) { return key.find(part) != key.npos; });
}

class Numbers {
 public:
  void see(const std::string& place, double number) {
    if (number > 3 || number < -3) places_[withDecimals(number, 4)].insert(place);
  }
  void see(const std::string& place, int64_t number) { see(place, static_cast<double>(number)); }
  template <class T>
  void see(const std::string&, const T&) {}

  std::vector<std::string> shared() const {
    std::vector<std::string> found;
    for (const auto& [number, places] : places_) {
      if (places.size() < 2) continue;
      std::string line = number + ":";
      for (const std::string& place : places) line += " " + place;
      found.push_back(line);
    }
    return found;
  }

 private:
  std::map<std::string, std::set<std::string>> places_;
};

}  // namespace

void giveOwnScalars(GameState& state, OwnValues& own) {
  for (const Scalar& scalar : scalars) {
    std::visit([&](auto member) { own.give(scalar.key, state.*member); }, scalar.member);
  }
}

std::vector<std::string> sharedNumbers(const GameState& state) {
  Numbers numbers;
  for (const Scalar& scalar : scalars) {
    if (isSharedByDesign(scalar.key)) continue;
    std::visit([&](auto member) { numbers.see(std::string(scalar.key), state.*member); }, scalar.member);
  }
  forEachField<GameState>([&](const auto& list) {
    for (size_t i = 0; i < (state.*list.member).size(); ++i) {
      const auto& record = (state.*list.member)[i];
      using Entry = std::remove_cvref_t<decltype(record)>;
      forEachField<Entry>([&](const auto& field) {
        if (isSharedByDesign(field.key)) return;
        const std::string place = std::string(list.key) + "[" + std::to_string(i) + "]." + std::string(field.key);
        numbers.see(place, record.*field.member);
      });
    }
  });
  return numbers.shared();
}

}  // namespace backbeat
