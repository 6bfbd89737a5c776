// Numbers and texts that stand nowhere else: in a world made of them, two figures that are told from different things
// cannot read the same.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/game_state.h"

namespace backbeat {

class OwnValues {
 public:
  /// A whole number from 2,003 on, seven apart.
  int64_t number() { return last_ += 7; }

  /// A record whose numbers and texts are its own; flags are down, and lists and dates empty.
  template <class T>
  T record() {
    T record;
    forEachField<T>([&](const auto& field) { give(field.key, record.*field.member); });
    return record;
  }

  void give(std::string_view, int64_t& value) { value = number(); }
  void give(std::string_view, double& value) { value = static_cast<double>(number()) + 0.37; }
  void give(std::string_view key, std::string& value) { value = std::string(key) + " " + std::to_string(number()); }
  template <class T>
  void give(std::string_view, T&) {}

 private:
  int64_t last_ = 1'996;
};

/// Every scalar gets a value of its own, but for lists and dictionaries.
void giveOwnScalars(GameState& state, OwnValues& own);

/// The numbers that stand in more than one place of a state, each with its places: "2045: Song.totalListen,
/// totalFans". Ids, codes and the calendar are shared by design, and so are the few that are 3 or less.
std::vector<std::string> sharedNumbers(const GameState& state);

}  // namespace backbeat
