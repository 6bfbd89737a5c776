#include "shell/registry.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace backbeat {
namespace {

TEST(Registry, EveryLineOfAMenuLeadsSomewhereAndCanBeToldFromTheOthers) {
  std::set<std::string> always;
  for (const Room* room : rooms()) {
    for (const MenuLine& line : room->menu) {
      EXPECT_NE(segueNamed(line.segue), nullptr) << line.title << " leads to " << line.segue;
      const std::string press = std::to_string(line.tab) + " " + std::string(line.id.empty() ? line.segue : line.id);
      if (!line.shown) EXPECT_TRUE(always.insert(press).second) << press << " is on its tab twice";
    }
  }
}

TEST(Registry, TheLinesOfASectionStandTogether) {
  std::map<TabNumber, std::vector<std::pair<int64_t, std::string_view>>> menus;
  for (const Room* room : rooms()) {
    for (const MenuLine& line : room->menu) menus[line.tab].emplace_back(line.order, line.section);
  }
  for (auto& [tab, lines] : menus) {
    std::stable_sort(lines.begin(), lines.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
    std::set<std::string_view> begun;
    std::string_view section;
    for (const auto& [order, next] : lines) {
      if (next != section) EXPECT_TRUE(begun.insert(next).second) << next << " is torn at " << order;
      section = next;
    }
  }
}

}  // namespace
}  // namespace backbeat
