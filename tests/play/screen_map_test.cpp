// Where everything stands: docs/screens.md is written from the walk through the screens and the errands, and has to be
// what they find today.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "play/crawl.h"
#include "play/errand_runner.h"
#include "shell/registry.h"
#include "support/program.h"

namespace backbeat {
namespace {

constexpr size_t mostPresses = 3;
constexpr const char* page = BACKBEAT_SOURCE_DIR "/docs/screens.md";
constexpr std::string_view mark = "<!-- what follows is written by a test -->\n";

using Way = std::vector<std::string>;

struct Place {
  size_t tab = 0;
  Way way;
};

/// The shortest way to each screen, from whatever tab.
std::map<std::string, Place> places() {
  Coverage all;
  all.add(wholeCrawl().coverage);
  all.add(errandsRun().coverage);
  std::map<std::string, Place> found;
  for (const auto& [segue, byTab] : all.ways) {
    const auto shortest = std::min_element(
        byTab.begin(), byTab.end(), [](const auto& a, const auto& b) { return a.second.size() < b.second.size(); });
    found[segue] = {shortest->first, shortest->second};
  }
  return found;
}

std::string nameOf(const std::string& segue) {
  std::string name(segueNamed(segue)->screen);
  const std::string ending = "ViewController";
  return name.ends_with(ending) ? name.substr(0, name.size() - ending.size()) : name;
}

std::string told(const Way& way) {
  std::string text;
  for (size_t i = 1; i < way.size(); ++i) text += (i > 1 ? " › " : "") + nameOf(way[i]);
  return text;
}

/// The lines that stand on a tab, those that come and go with the career too.
std::vector<const MenuLine*> linesOf(size_t tab) {
  std::vector<const MenuLine*> lines;
  for (const Room* room : rooms()) {
    for (const MenuLine& line : room->menu) {
      if (line.tab == tab) lines.push_back(&line);
    }
  }
  std::stable_sort(lines.begin(), lines.end(),
                   [](const MenuLine* a, const MenuLine* b) { return a->order < b->order; });
  return lines;
}

std::string map() {
  const std::map<std::string, Place> found = places();
  std::string text;
  for (size_t tab = 0; tab < tabCount; ++tab) {
    text += "\n## " + std::string(tabs()[tab].label) + "\n\n";
    std::string_view section;
    for (const MenuLine* line : linesOf(tab)) {
      if (line->section != section) text += "- " + std::string(section = line->section) + "\n";
      const std::string title(line->title.empty() ? line->segue : line->title);
      text += "  - " + title + (line->shown ? " (at times)" : "") + ": " + nameOf(std::string(line->segue)) + "\n";
    }
    std::set<std::string> ways;
    for (const auto& [segue, place] : found) {
      if (place.tab == tab && place.way.size() > 1) ways.insert(told(place.way));
    }
    text += "\nFrom here, by the shortest way:\n\n";
    for (const std::string& way : ways) text += "- " + way + "\n";
  }
  text +=
      "\n## Over everything\n\nThe week's report and what is opened from it, and what has to be answered first.\n\n";
  std::set<std::string> over;
  for (const Segue& segue : segues()) {
    const std::string name(segue.name);
    if (!found.contains(name)) over.insert(nameOf(name));
  }
  for (const std::string& name : over) text += "- " + name + "\n";
  return text;
}

TEST(ScreenMap, NothingLiesDeeperThanThreePresses) {
  for (const auto& [segue, place] : places()) {
    EXPECT_LE(place.way.size() - 1, mostPresses) << nameOf(segue) << " is only reached by " << told(place.way);
  }
}

TEST(ScreenMap, ThePageTellsWhereEverythingStands) {
  const std::string text = contentOf(page);
  const size_t at = text.find(mark);
  ASSERT_NE(at, std::string::npos) << page << " has lost its mark";
  const std::string head = text.substr(0, at + mark.size());
  const std::string today = map();
  if (std::getenv("BACKBEAT_REMAP")) return writeFile(page, head + today);
  EXPECT_EQ(text.substr(head.size()), today)
      << "the ways have changed; look whether they are meant, and bring the page up to date:\n"
         "BACKBEAT_REMAP=1 backbeat_tests --gtest_filter='ScreenMap*'";
}

}  // namespace
}  // namespace backbeat
