// What careers cost, each figure beside a reference measured in the same run: a heavy one at 1, 10, 50 and 100 years,
// and one with everything else besides at 10 and 100; a full label of 50 years is told of and held to nothing. Prints
// the tables in Markdown; fails when a goal is missed.
//
//   backbeat_bench FOLDER [PART]...  measures all, or only "records", "everything", "full"; leaves in FOLDER what
//                                    wasm_turn.mjs needs
//   backbeat_bench --cpu FOLDER ...  the same in processor time, for a machine that is busy with other things
//   backbeat_bench --peak FILE       plays on from a save and tells the peak of its memory in kilobytes
#include <algorithm>
#include <array>
#include <cstdio>
#include <iostream>
#include <span>
#include <string>
#include <vector>

#include "label_career.h"
#include "lengths.h"
#include "screens.h"

namespace backbeat {
namespace {

constexpr Plan records[] = {{.name = "", .live = liveWeek, .years = 1},
                            {.name = "", .live = liveWeek, .years = 10},
                            {.name = "", .live = liveWeek, .years = 50},
                            {.name = "", .live = liveWeek, .years = 100, .visitsEveryScreen = true}};
constexpr Plan everything[] = {{.name = "everything",
                                .live = liveEverythingWeek,
                                .years = 10,
                                .hasLabel = true,
                                .hasFamily = true,
                                .goesThroughTheDoor = false},
                               {.name = "everything",
                                .live = liveEverythingWeek,
                                .years = 100,
                                .hasLabel = true,
                                .hasFamily = true,
                                .visitsEveryScreen = true,
                                .goesThroughTheDoor = false}};
constexpr Plan fullLabel[] = {
    {.name = "full", .live = liveFullLabelWeek, .years = 50, .hasLabel = true, .goesThroughTheDoor = false}};

std::string figure(double value) {
  std::array<char, 32> text{};
  const int places = value < 0.1 ? 4 : value < 1 ? 3 : value < 10 ? 2 : value < 100 ? 1 : 0;
  std::snprintf(text.data(), text.size(), "%.*f", places, value);
  return text.data();
}

class Table {
 public:
  explicit Table(const std::vector<Length>& all) : all_(all) {
    std::cout << '|';
    for (const Length& length : all) std::cout << " | year " << length.plan.years;
    std::cout << " |\n|---|";
    for (size_t i = 0; i < all.size(); ++i) std::cout << "---|";
    std::cout << '\n';
  }
  template <class Cell>
  void row(const std::string& what, Cell&& cell) const {
    std::cout << "| " << what;
    for (const Length& length : all_) std::cout << " | " << cell(length);
    std::cout << " |\n";
  }
  void time(const std::string& what, const std::string& name) const {
    row(what, [&](const Length& length) { return figure(length.of(name)); });
  }

 private:
  const std::vector<Length>& all_;
};

void tellScreens(const Table& table, const std::vector<Length>& all) {
  for (const HeavyScreen* screen : screensOf(all.front().plan)) {
    table.time("**screen**: " + std::string(screen->name), screen->name);
  }
  table.row("the slowest of every screen of the game", [](const Length& length) {
    if (length.screens == 0) return std::string();
    return figure(length.slowest()) + " (" + length.slowestScreen + ", of " + std::to_string(length.screens) + ")";
  });
}

void tell(const char* title, const std::vector<Length>& all) {
  std::cout << "\n## " << title << "\n\n";
  const Table table(all);
  table.row("songs; of them streaming", [](const Length& length) {
    return std::to_string(length.songs) + "; " + std::to_string(length.streaming);
  });
  table.row("records in the career", [](const Length& length) { return std::to_string(length.records); });
  if (all.front().plan.hasLabel) {
    table.row("of them weeks of the label's songs and albums",
              [](const Length& length) { return std::to_string(length.signedRows); });
  }
  if (all.front().plan.hasFamily) {
    table.row("family, fortune and fame", [](const Length& length) { return length.family; });
  }
  table.row("a week commits", [](const Length& length) { return length.weekWritten; });
  table.time("**week**, played and durable", "week");
  table.time("reference: SQLite committing the same rows", "rows");
  table.time("reference: every list that a step touched, written whole", "whole");
  table.time("the quiet moment after it (checkpoint)", "rest");
  table.time("**week**, in memory (nothing encoded)", "memory");
  table.time("reference: copying the state, record by record", "copy");
  table.time("**load**", "load");
  table.time("reference: SQLite handing out the rows, nothing decoded", "read");
  table.time("**export**", "export");
  table.time("**import**", "import");
  table.time("reference: memcpy of the exported file", "memcpy");
  tellScreens(table, all);
  table.row("**store**, MB", [](const Length& length) { return figure(length.storeSize); });
  table.row("after clearing up, MB", [](const Length& length) { return figure(length.prunedSize); });
  table.row("reference: the exported file, MB", [](const Length& length) { return figure(length.exportedSize); });
  table.row("**peak memory** of playing on, MB", [](const Length& length) { return figure(length.peakMemory); });
}

/// One line of the goals; whether it is met.
bool compare(const std::string& what, double value, double limit) {
  const bool met = value <= limit;
  std::cout << "| " << what << " | " << figure(limit) << " | " << figure(value) << (met ? "" : " **missed**") << " |\n";
  return met;
}

/// The most that a week of the last year may be of another week's time.
struct WeekGoals {
  double ofSqlite = 3;
  double ofYearTen = 2;
};

/// What holds of each kind of career, at its tenth year and at its last.
bool compareAll(const Length& ten, const Length& last, const WeekGoals& goals) {
  const std::string when = " at year " + std::to_string(last.plan.years);
  std::cout << "\n| goal | at most | measured |\n|---|---|---|\n";
  const double week = last.of("week");
  bool met = compare("week" + when + " / SQLite committing the same rows", week / last.of("rows"), goals.ofSqlite);
  met &= compare("week" + when + " / week at year 10", week / ten.of("week"), goals.ofYearTen);
  met &= compare("week" + when + " / every touched list whole", week / last.of("whole"), 0.02);
  if (!last.plan.hasLabel) met &= compare("week in memory at year 10, ms", ten.of("memory"), 0.2);
  met &= compare("load" + when + ", ms", last.of("load"), 1000);
  double slowest = last.slowest();
  for (const HeavyScreen* screen : screensOf(last.plan)) slowest = std::max(slowest, last.of(screen->name));
  met &= compare("slowest screen" + when + ", ms", slowest, 2);
  met &= compare("peak memory" + when + ", MB", last.peakMemory, 250);
  return met;
}

std::vector<Length> measured(const std::string& folder, std::span<const Plan> plans) {
  std::vector<Length> all;
  for (const Plan& plan : plans) all.push_back(measureLength(folder, plan));
  return all;
}

/// Measures the parts that are named, or all; whether every goal is met.
bool measureParts(const std::string& folder, std::span<char* const> named) {
  const auto wanted = [&](const std::string& part) {
    return named.empty() || std::find(named.begin(), named.end(), part) != named.end();
  };
  bool met = true;
  if (wanted("records")) {
    const std::vector<Length> all = measured(folder, records);
    tell("Records, tours and a shop", all);
    met &= compareAll(all[1], all[3], {.ofSqlite = 2.3, .ofYearTen = 1.6});
  }
  if (wanted("everything")) {
    const std::vector<Length> all = measured(folder, everything);
    tell("Everything at once, nothing ever cleared up", all);
    met &= compareAll(all[0], all[1], {.ofSqlite = 3, .ofYearTen = 2});
  }
  if (wanted("full")) tell("A full label", measured(folder, fullLabel));
  return met;
}

}  // namespace
}  // namespace backbeat

int main(int argc, char** argv) {
  using namespace backbeat;
  if (argc == 3 && std::string(argv[1]) == "--peak") return tellPeakMemory(argv[2]);
  if (argc > 2 && std::string(argv[1]) == "--cpu") {
    countProcessorTime();
    ++argv;
    --argc;
  }
  if (argc < 2) return 2;
  return measureParts(argv[1], {argv + 2, argv + argc}) ? 0 : 1;
}
