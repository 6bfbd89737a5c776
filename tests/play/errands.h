// Ways that chance seldom takes to their end, taken on purpose. Each room has an `errands.cpp` with its own.
#pragma once

#include <initializer_list>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "play/worlds.h"

namespace backbeat {

/// One press of an errand: a tab, an action or the part of it before its colon, or a label; or the title of an alert
/// that has to stand here. With it what goes along, when it matters.
struct Wish {
  std::string_view what;
  std::string value = {};
};

struct Errand {
  std::string_view name;
  std::vector<std::string_view> worlds;  ///< in which it gets to its end
  std::vector<Wish> wishes;              ///< what to press one after the other
  int64_t weeks = 0;                     ///< it is begun anew so many times, a week later each, when it gets stuck
};

/// A room's errands, among those of all rooms from the start of the program on: one constant in its `errands.cpp`.
struct RoomErrands {
  RoomErrands(std::initializer_list<Errand> errands);
};

/// Those of all rooms, by name.
std::span<const Errand> errands();

}  // namespace backbeat
