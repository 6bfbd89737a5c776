#include "shell/registry.h"

#include <algorithm>
#include <vector>

#include "career/screens/daily_life_view_controller.h"
#include "career/segues.h"
#include "features/segues.h"
#include "label/segues.h"
#include "life/segues.h"
#include "live/segues.h"
#include "merch/segues.h"
#include "music/screens/music_view_controller.h"
#include "music/segues.h"
#include "recognition/segues.h"
#include "shell/segues.h"
#include "social/screens/twitter_profile_view_controller.h"
#include "social/segues.h"
#include "turn/screens/financial_view_controller.h"
#include "turn/screens/view_controller.h"
#include "turn/segues.h"
#include "video/segues.h"
#include "wealth/segues.h"

namespace backbeat {

const std::array<Tab, tabCount>& tabs() {
  using enum Segue::Presentation;
  static constexpr std::array<Tab, tabCount> all = {{
      {"Home", "home", {"home", "ViewController", push, makeScreen<ViewController>}},
      {"Music", "music", {"music", "MusicViewController", push, makeScreen<MusicViewController>}},
      {"Life", "life", {"life", "DailyLifeViewController", push, makeScreen<DailyLifeViewController>}},
      {"Business", "business", {"business", "FinancialViewController", push, makeScreen<FinancialViewController>}},
      {"Social", "social", {"social", "TwitterProfileViewController", push, makeScreen<TwitterProfileViewController>}},
  }};
  return all;
}

std::span<const Room* const> rooms() {
  static constexpr const Room* all[] = {&socialRoom, &careerRoom, &musicRoom, &videoRoom,  &featuresRoom,
                                        &liveRoom,   &merchRoom,  &labelRoom, &wealthRoom, &recognitionRoom,
                                        &lifeRoom,   &turnRoom,   &shellRoom};
  return all;
}

std::span<const Segue> segues() {
  static const std::vector<Segue> all = [] {
    std::vector<Segue> joined;
    for (const Room* room : rooms()) joined.insert(joined.end(), room->segues.begin(), room->segues.end());
    return joined;
  }();
  return all;
}

const Segue* segueNamed(std::string_view name) {
  const std::span<const Segue> all = segues();
  const auto found = std::find_if(all.begin(), all.end(), [&](const Segue& segue) { return segue.name == name; });
  return found == all.end() ? nullptr : &*found;
}

}  // namespace backbeat
