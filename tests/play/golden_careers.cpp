#include "play/golden_careers.h"

#include <algorithm>
#include <map>

#include "play/worlds.h"
#include "shell/native/view_printer.h"

namespace backbeat {

namespace {

constexpr int64_t newYear2023 = 1'672'660'800'000;  // unix milliseconds

}  // namespace

PlayedCareer played(const GoldenCareer& golden) {
  PlayedCareer career;
  MemoryStore store;
  if (!golden.world.empty()) settleInto(store, namedWorld(golden.world));
  career.beginning = store.rows;
  const int64_t time = golden.world.empty() ? newYear2023 : timeIn(store);
  Player player(store, time, golden.seed, career.problems);
  golden.play(player);
  for (const std::string& line : player.lines()) career.trace += line + "\n";
  career.events = readTrace(career.trace).events;
  career.end = player.state();
  return career;
}

std::span<const GoldenCareer> goldenCareers() {
  static constexpr GoldenCareer all[] = {
      {"golden_year", 20230102, "", playGoldenYear},
      {"golden_decade", 77, "", playGoldenDecade},
      {"golden_hits", 5, "star", playGoldenHits},
      {"golden_dynasty", 31, "family of five", playGoldenDynasty},
      {"golden_label", 12, "before the label", playGoldenLabel},
  };
  return all;
}

const PlayedCareer& goldenCareer(std::string_view name) {
  static std::map<std::string_view, PlayedCareer> known;
  const auto [found, isNew] = known.try_emplace(name);
  if (!isNew) return found->second;
  for (const GoldenCareer& golden : goldenCareers()) {
    if (golden.name == name) found->second = played(golden);
  }
  return found->second;
}

std::string typedFor(const PlayedCareer& played) {
  MemoryStore store;
  store.rows = played.beginning;
  QuietPlatform platform;
  TraceRecorder career(store, platform);
  std::string typed;
  for (const TraceEvent& event : played.events) {
    if (event.screenKey == "tabs") {
      typed += std::string(tabs()[static_cast<size_t>(wholeNumber(event.action.value).value_or(0))].label) + "\n";
    } else if (event.screenKey == "nav") {
      typed += event.action.id == "back" ? "back\n" : "end\n";
    } else if (event.kind == TraceEvent::Kind::act) {
      const Shown shown = career.session().shown();
      const std::vector<Pressable> offered = printScreen(career.session().navigator(), shown, false).pressables;
      const auto chosen = std::find_if(offered.begin(), offered.end(), [&](const Pressable& each) {
        const bool sameButton = each.screenKey != "alert" || each.action.value == event.action.value;
        return each.screenKey == event.screenKey && each.action.id == event.action.id && sameButton;
      });
      typed += std::to_string(chosen - offered.begin() + 1);
      if (chosen != offered.end() && chosen->takes == Pressable::Takes::text) typed += "\n" + event.action.value;
      if (chosen != offered.end() && chosen->takes == Pressable::Takes::option) {
        typed += " " + std::to_string(wholeNumber(event.action.value).value_or(0) + 1);
      }
      typed += "\n";
    }
    career.play(event);
  }
  return typed;
}

}  // namespace backbeat
