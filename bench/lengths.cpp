#include "lengths.h"

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

#include "core/career_file.h"
#include "family_career.h"
#include "label_career.h"
#include "saved_world.h"
#include "shell/page_store.h"
#include "shell/trace.h"
#include "turn/pruning.h"

namespace backbeat {

namespace {

constexpr int64_t weeksOfAYear = 52;
constexpr uint64_t doorSeed = 2023;
constexpr int doorWeeks = 41;
constexpr double megabyte = 1'000'000;

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

void measureScreens(Session& session, const Length& length) {
  for (const HeavyScreen* screen : screensOf(length.plan)) {
    measure(
        screen->name + length.name, 31, [&session, screen] { goToScreen(session, *screen); },
        [&] { benchmark::DoNotOptimize(describedScreen(session)); }, [] {});
  }
}

void measureEveryScreen(Session& session, Length& length) {
  std::vector<LooseScreen> screens = everyScreen(session);
  Shown glass = session.shown();
  for (const LooseScreen& loose : screens) {
    measure(loose.name + length.name, 21,
            [&] { benchmark::DoNotOptimize(describedScreen(session, glass, *loose.screen)); });
  }
  runAll(length.ms);
  length.screens = screens.size();
  const auto slowest = std::max_element(screens.begin(), screens.end(), [&](const auto& a, const auto& b) {
    return length.of(a.name) < length.of(b.name);
  });
  length.slowestScreen = slowest->name;
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
  const std::string years = std::to_string(length.plan.years);
  std::ofstream(folder / (years + ".rows"), std::ios::binary) << career.rows;
  std::ofstream(folder / "native_turns.txt", std::ios::app)
      << years << ' ' << doorSeed << ' ' << doorWeeks << ' ' << career.weekMs << ' ' << career.hash << '\n';
}

// Memory.

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

/// What the save weighs once everything is cleared up that the game clears up.
double sizeWhenPruned(const std::filesystem::path& folder, const GameState& state) {
  NullStore nowhere;
  LoneGame tidy(nowhere);
  tidy.game.state = state;
  optimize(tidy.game);
  const std::string path = (folder / "pruned").string();
  std::filesystem::remove(path);
  const auto store = SqliteStore::open(path).store;
  store->commit(rowsOf(tidy.game.state));
  store->rest();
  return fileSize(path);
}

}  // namespace

double Length::of(const std::string& what) const {
  const auto found = ms.find(what + name);
  return found == ms.end() ? 0 : found->second;
}

std::vector<const HeavyScreen*> screensOf(const Plan& plan) {
  std::vector<const HeavyScreen*> screens;
  const auto take = [&](const std::vector<HeavyScreen>& more) {
    for (const HeavyScreen& screen : more) screens.push_back(&screen);
  };
  take(heavyScreens());
  if (plan.hasLabel) take(labelScreens());
  if (plan.hasFamily) take(familyScreens());
  return screens;
}

Length measureLength(const std::filesystem::path& folder, const Plan& plan) {
  Length length;
  length.plan = plan;
  length.name = "/" + std::string(plan.name) + std::to_string(plan.years);
  SavedWorld world(folder, length.name.substr(1), plan.years * weeksOfAYear, plan.live);
  length.songs = world.state().saveAllSongList.size();
  length.streaming = songsStreaming(world.state());
  length.records = recordsIn(world.state());
  length.signedRows = signedRowsIn(world.state());
  length.family = familyIn(world.state());
  const Bytes exported = exportCareer(world.state());
  length.exportedSize = static_cast<double>(exported.size()) / megabyte;
  if (plan.goesThroughTheDoor) leaveForTheDoor(folder, length, playThroughTheDoor(world.state()));
  measureFiles(world, length.name, exported);
  measureWeeks(world, length.name);
  runAll(length.ms);
  length.weekWritten = world.weekWritten();
  const std::string path = world.closedPath();
  length.storeSize = fileSize(path);
  length.prunedSize = sizeWhenPruned(folder, world.state());
  measureLoading(path, length.name);
  runAll(length.ms);
  length.peakMemory = peakMemory(path);
  const auto store = SqliteStore::open(path).store;
  QuietPlatform platform;
  Session session(*store, platform, doorSeed, {});
  measureScreens(session, length);
  runAll(length.ms);
  if (plan.visitsEveryScreen) measureEveryScreen(session, length);
  return length;
}

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

}  // namespace backbeat
