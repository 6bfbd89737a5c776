#include "play/errands.h"

#include <algorithm>

namespace backbeat {

namespace {

std::vector<Errand>& allErrands() {
  static std::vector<Errand> all;
  return all;
}

}  // namespace

RoomErrands::RoomErrands(std::initializer_list<Errand> errands) {
  std::vector<Errand>& all = allErrands();
  all.insert(all.end(), errands.begin(), errands.end());
  std::sort(all.begin(), all.end(), [](const Errand& a, const Errand& b) { return a.name < b.name; });
}

std::span<const Errand> errands() { return allErrands(); }

}  // namespace backbeat
