// What a career costs at 1, 10, 50 and 100 years, each figure beside a reference measured in the same run. Prints the
// table in Markdown; fails when a goal is missed.
//
//   backbeat_bench FOLDER         measures; leaves in FOLDER what wasm_turn.mjs needs
//   backbeat_bench --peak FILE    plays on from a save and tells the peak of its memory in kilobytes
#include <benchmark/benchmark.h>
#include <limits.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <string>

#include "core/career_file.h"
#include "saved_world.h"
#include "screens.h"
#include "shell/page_store.h"
#include "shell/trace.h"
#include "times.h"

namespace backbeat {
namespace {

constexpr std::array<int64_t, 4> lengths = {1, 10, 50, 100};  // years
constexpr int64_t weeksOfAYear = 52;
constexpr uint64_t doorSeed = 2023;
constexpr int doorWeeks = 41;
constexpr double megabyte = 1'000'000;

/// Everything that is measured of a career of one length. Times are milliseconds.
struct Length {
  int64_t years = 0;
  std::string name;  ///< of its measurements: "/100"
  Times ms;
  size_t songs = 0;
  size_t streaming = 0;
  size_t records = 0;
  std::string weekWritten;
  double storeSize = 0;     ///< megabytes
  double exportedSize = 0;  ///< megabytes
  double peakMemory = 0;    ///< megabytes

  double of(const std::string& what) const {
    const auto found = ms.find(what + name);
    return found == ms.end() ? 0 : found->second;
  }
};

double fileSize(const std::string& path) { return static_cast<double>(std::filesystem::file_size(path)) / megabyte; }

// Playing and storing weeks.

void measureWeeks(SavedWorld& world, const std::string& name) {
  const Step nothing = [] {};
  const Step record = [&] { world.recordWeek(); };
  measure(
      "week" + name, 201, [&] { world.liveDurably(); }, [&] { world.playWeekDurably(); },
      [&] { world.restAfterWeek(); });
  measure(
      "memory" + name, 501, [&] { world.liveInMemory(); }, [&] { world.playWeekInMemory(); }, nothing);
  measure(
      "rows" + name, 201, record, [&] { world.commitRows(); }, [&] { world.restRows(); });
  measure(
      "whole" + name, 5, record, [&] { world.commitWholeLists(); }, [&] { world.restWhole(); });
  measure(
      "rest" + name, 51, [&] { world.playWeekDurably(); }, [&] { world.restAfterWeek(); }, nothing);
}

// Reading and writing whole careers.

void measureFiles(SavedWorld& world, const std::string& name, const Bytes& exported) {
  const GameState& state = world.state();
  measure("copy" + name, 15, [&] { benchmark::DoNotOptimize(GameState(state)); });
  measure("memcpy" + name, 15, [&] { benchmark::DoNotOptimize(Bytes(exported)); });
  measure("export" + name, 9, [&] { benchmark::DoNotOptimize(exportCareer(state)); });
  measure("import" + name, 9, [&] { benchmark::DoNotOptimize(importCareer(exported).state.has_value()); });
}

void measureLoading(const std::string& path, const std::string& name) {
  const auto openSave = [path] { return SqliteStore::open(path).store; };
  measure("load" + name, 9, [=] {
    const auto store = openSave();
    GameState state;
    benchmark::DoNotOptimize(SaveFile(*store).load(state).readable);
  });
  measure("read" + name, 9, [=] { openSave()->visitRows([](std::string_view, int32_t, const Value&) {}); });
}

// Screens.

void measureScreens(Session& session, const std::string& name) {
  for (const HeavyScreen& screen : heavyScreens()) {
    measure(
        screen.name + name, 31,
        [&] {
          if (!session.shown().modal) goToScreen(session, screen);
        },
        [&] { benchmark::DoNotOptimize(describedScreen(session)); }, [] {});
  }
}

// The same turn through the page's door, here and in WebAssembly.

/// Rows as the page keeps them, one by one, and how many milliseconds a week takes through the door.
struct DoorCareer {
  Bytes rows;
  double weekMs = 0;
  std::string hash;
};

DoorCareer playThroughTheDoor(GameState state) {
  DoorCareer career;
  PageStore store;
  PageStore packer;
  for (const Write& row : rowsOf(state)) {
    packer.commit(std::array{row});
    const Bytes packed = packer.takeBatch();
    store.addRow(packed);
    career.rows += packed;
  }
  QuietPlatform platform;
  Session session(store, platform, doorSeed, {});
  store.dropRows();
  std::vector<double> weeks;
  for (int week = 0; week < doorWeeks; ++week) {
    std::chrono::duration<double, std::milli> took{};
    endTheWeek(session, [&](const std::string& screenKey, const std::string& id, const std::string& value) {
      const auto start = std::chrono::steady_clock::now();
      pressOnce(session, screenKey, id, value);
      benchmark::DoNotOptimize(describedScreen(session));
      benchmark::DoNotOptimize(store.takeBatch());
      took += std::chrono::steady_clock::now() - start;
    });
    weeks.push_back(took.count());
  }
  career.weekMs = firstQuartile(weeks);
  career.hash = hashText(stateHash(session.game().state));
  return career;
}

void leaveForTheDoor(const std::filesystem::path& folder, const Length& length, const DoorCareer& career) {
  const std::string years = std::to_string(length.years);
  std::ofstream(folder / (years + ".rows"), std::ios::binary) << career.rows;
  std::ofstream(folder / "native_turns.txt", std::ios::app)
      << years << ' ' << doorSeed << ' ' << doorWeeks << ' ' << career.weekMs << ' ' << career.hash << '\n';
}

// Memory.

/// Loads a save, looks at every heavy screen, plays and exports: then the greatest memory so far, in kilobytes.
int tellPeakMemory(const std::string& path) {
  const SqliteStore::Opened opened = SqliteStore::open(path);
  if (!opened.store) return 2;
  QuietPlatform platform;
  Session session(*opened.store, platform, doorSeed, {});
  for (int week = 0; week < 5; ++week) {
    for (const HeavyScreen& screen : heavyScreens()) {
      if (screen.presses.empty()) continue;
      goToScreen(session, screen);
      describedScreen(session);
    }
    goToScreen(session, heavyScreens().front());
    endTheWeek(session, [&](const std::string& screenKey, const std::string& id, const std::string& value) {
      pressOnce(session, screenKey, id, value);
      describedScreen(session);
    });
  }
  std::ifstream status("/proc/self/status");
  for (std::string line; std::getline(status, line);) {
    if (line.starts_with("VmHWM:")) std::cout << std::atoll(line.c_str() + line.find_first_of("0123456789")) << '\n';
  }
  return 0;
}

/// Asks a process of its own, since this one holds much more than a game does.
double peakMemory(const std::string& save) {
  std::array<char, PATH_MAX> self{};
  if (readlink("/proc/self/exe", self.data(), self.size() - 1) <= 0) return 0;
  FILE* answer = popen(("'" + std::string(self.data()) + "' --peak '" + save + "'").c_str(), "r");
  if (answer == nullptr) return 0;
  long long kilobytes = 0;
  if (std::fscanf(answer, "%lld", &kilobytes) != 1) kilobytes = 0;
  pclose(answer);
  return static_cast<double>(kilobytes) * 1024 / megabyte;
}

Length measureLength(const std::filesystem::path& folder, int64_t years) {
  Length length;
  length.years = years;
  length.name = "/" + std::to_string(years);
  SavedWorld world(folder, years * weeksOfAYear);
  length.songs = world.state().saveAllSongList.size();
  length.streaming = songsStreaming(world.state());
  length.records = recordsIn(world.state());
  const Bytes exported = exportCareer(world.state());
  length.exportedSize = static_cast<double>(exported.size()) / megabyte;
  leaveForTheDoor(folder, length, playThroughTheDoor(world.state()));
  measureFiles(world, length.name, exported);
  measureWeeks(world, length.name);
  runAll(length.ms);
  length.weekWritten = world.weekWritten();
  const std::string path = world.closedPath();
  length.storeSize = fileSize(path);
  measureLoading(path, length.name);
  runAll(length.ms);
  length.peakMemory = peakMemory(path);
  const auto store = SqliteStore::open(path).store;
  QuietPlatform platform;
  Session session(*store, platform, doorSeed, {});
  measureScreens(session, length.name);
  runAll(length.ms);
  return length;
}

// Telling.

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
    for (const Length& length : all) std::cout << " | year " << length.years;
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

void tell(const std::vector<Length>& all) {
  const Table table(all);
  table.row("songs; of them streaming", [](const Length& length) {
    return std::to_string(length.songs) + "; " + std::to_string(length.streaming);
  });
  table.row("records in the career", [](const Length& length) { return std::to_string(length.records); });
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
  for (const HeavyScreen& screen : heavyScreens()) {
    table.time("**screen**: " + std::string(screen.name), screen.name);
  }
  table.row("**store**, MB", [](const Length& length) { return figure(length.storeSize); });
  table.row("reference: the exported file, MB", [](const Length& length) { return figure(length.exportedSize); });
  table.row("**peak memory** of playing on, MB", [](const Length& length) { return figure(length.peakMemory); });
}

/// One line of the goals; whether it is met.
bool compare(const std::string& what, double value, double limit) {
  const bool met = value <= limit;
  std::cout << "| " << what << " | " << figure(limit) << " | " << figure(value) << (met ? "" : " **missed**") << " |\n";
  return met;
}

bool compareAll(const Length& ten, const Length& hundred) {
  std::cout << "\n| goal | at most | measured |\n|---|---|---|\n";
  const double week = hundred.of("week");
  bool met = compare("week at year 100 / SQLite committing the same rows", week / hundred.of("rows"), 3);
  met &= compare("week at year 100 / week at year 10", week / ten.of("week"), 2);
  met &= compare("week at year 100 / every touched list whole", week / hundred.of("whole"), 0.02);
  met &= compare("week in memory at year 10, ms", ten.of("memory"), 0.2);
  met &= compare("load at year 100, ms", hundred.of("load"), 1000);
  double slowest = 0;
  for (const HeavyScreen& screen : heavyScreens()) slowest = std::max(slowest, hundred.of(screen.name));
  met &= compare("slowest screen at year 100, ms", slowest, 2);
  met &= compare("peak memory at year 100, MB", hundred.peakMemory, 250);
  return met;
}

}  // namespace
}  // namespace backbeat

int main(int argc, char** argv) {
  using namespace backbeat;
  if (argc == 3 && std::string(argv[1]) == "--peak") return tellPeakMemory(argv[2]);
  if (argc != 2) return 2;
  std::vector<Length> all;
  for (const int64_t years : lengths) all.push_back(measureLength(argv[1], years));
  tell(all);
  return compareAll(all[1], all[3]) ? 0 : 1;
}
