#include "life/screens/family_words.h"

#include "core/view_words.h"
#include "life/children.h"

namespace backbeat {

Help childrenHelp() {
  return {
      .title = "🧐 CHILDREN 🧐",
      .text =
          "Create a family dynasty by teaching your children how to succeed. Choose their name (this will be their "
          "artist name once you take over) and help them to find their talents.\n\nADMIRATION\nIt falls a little "
          "every week. Above 75 a child trains by itself, and now and then gets better.\n\nCOSTS\nUntil the age of "
          "18 a child takes energy and money every week. Then it leaves home.\n\nTAKING OVER\nTake over one of your "
          "children's lives: from the age of 18 on, with their talents, their followers and their share of all that "
          "you own. It helps to be famous: with more than 25,000 listeners they win followers of their own."};
}

Gauges talentBars(const Child& child, std::string note) {
  constexpr int64_t full = 100;
  Gauges bars{.title = "Musical Talent", .note = std::move(note)};
  for (const Talent& talent : talents) {
    const int64_t level = child.*talent.level;
    bars.items.push_back({.label = talent.label, .value = std::to_string(level), .share = shareOf(level, full)});
  }
  return bars;
}

std::string_view sceneOf(const GameState& state, const Child& child) {
  if (child.typeOfRelationship == kinship::dead) return "memorial";
  if (!isInFamily(child)) return "rain";
  const int64_t age = ageOf(state, child);
  if (age < 2) return "nursery";
  return age < ageOfTeens ? "meadow" : "studio";
}

}  // namespace backbeat
