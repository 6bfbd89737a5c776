// What keeping a career costs: a week played against a real save, at 10 and at 100 years, beside what SQLite itself
// takes for the same rows and beside writing every touched list whole. Fails when a goal is missed.
#include <benchmark/benchmark.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <set>

#include "core/game.h"
#include "core/record_codec.h"
#include "music/streaming.h"
#include "shell/native/sqlite_store.h"
#include "turn/week_cycle.h"
#include "turn/weekly_summary_view_controller.h"

namespace backbeat {
namespace {

/// A career at full stretch: a song released every week and rated so that about eighty stream at a time, an album of
/// ten of them every ten weeks, and listeners enough to fill the chart.
constexpr int64_t famousEnough = 60'000'000;

std::string songTitle(int64_t id) { return "The Long Way Home " + std::to_string(id); }
std::string albumTitle(int64_t id) { return "Evening Edition " + std::to_string(id / 10); }

void releaseAlbum(GameState& state, int64_t id) {
  Album album;
  album.albumId = id / 10 + 1;
  album.title = albumTitle(id);
  album.isReleased = true;
  album.songCount = 10;
  album.releaseWeek = state.weekNumberForTracking;
  album.releaseYear = state.yearNumber;
  album.price = 9.99;
  album.marketingScore = 60;
  album.percentageOfEarnings = 1;
  state.saveAllAlbumList.append(std::move(album));
}

void releaseSong(Game& game) {
  GameState& state = game.state;
  Song song;
  song.songId = ++state.songId;
  song.title = songTitle(song.songId);
  song.album = albumTitle(song.songId);
  song.albumId = song.songId / 10 + 1;
  song.isReleased = true;
  song.releaseWeek = state.weekNumberForTracking;
  song.releaseYear = state.yearNumber;
  song.productionRating = game.random.uniformDouble(70, 100);
  song.viralityScore = game.random.uniformDouble(20, 60);
  song.features = {""};
  song.marketingScore = 60;
  song.streamPayRate = 0.001;
  song.percentageOfEarnings = 1;
  state.saveAllSongList.append(std::move(song));
  if (state.songId % 10 == 0) releaseAlbum(state, state.songId);
  game.save(&GameState::saveAllSongList, &GameState::saveAllAlbumList, &GameState::songId);
  game.saveFile.commit();
}

/// One week of the career that is measured: END THE WEEK until the report is closed, views not built.
void playWeek(Game& game) {
  runWeekCycle(game, [&] {
    WeeklySummaryViewController report(game);
    report.open();
    report.appear();
    report.closeButton();
  });
  game.saveFile.commit();
}

/// What the player does between two weeks; not measured.
void liveWeek(Game& game) {
  releaseSong(game);
  game.state.totalFans = famousEnough;
  game.save(&GameState::totalFans);
  game.saveFile.commit();
}

// What is measured, and against what.

using Transactions = std::vector<std::vector<Write>>;

/// Remembers what a week commits.
class Recorder final : public Store {
 public:
  bool commit(std::span<const Write> writes) override {
    transactions.emplace_back(writes.begin(), writes.end());
    return true;
  }
  bool visitRows(const std::function<void(std::string_view, int32_t, const Value&)>&) override { return true; }
  void quarantine(std::string_view) override {}

  Transactions transactions;
};

/// A game with everything that it is given.
struct Player {
  explicit Player(Store& store) : game(store, random, clock, platform) {}

  SeededRandom random{2023};
  SetClock clock;
  QuietPlatform platform;
  Game game;
};

void saveEverything(Game& game) {
  forEachField<GameState>([&](const auto& field) { game.saveFile.writeList(field.key, game.state.*field.member); });
  for (const Scalar& scalar : scalars) game.saveFile.writeScalar(game.state, scalar);
  game.saveFile.commit();
}

/// One career of a given length, twice: one is played against a real save, the other tells what rows a week writes.
class World {
 public:
  World(const std::filesystem::path& folder, int64_t weeks)
      : path_(folder / std::to_string(weeks)),
        store_(SqliteStore::open(path_.string() + ".played").store),
        rowStore_(SqliteStore::open(path_.string() + ".rows").store),
        wholeStore_(SqliteStore::open(path_.string() + ".whole").store),
        played_(*store_),
        recorded_(recorder_),
        memory_(nowhere_) {
    Player past(nowhere_);
    for (int64_t week = 0; week < weeks; ++week) {
      liveWeek(past.game);
      playWeek(past.game);
    }
    played_.game.state = past.game.state;
    memory_.game.state = past.game.state;
    recorded_.game.state = std::move(past.game.state);
    saveEverything(played_.game);
    saveEverything(recorded_.game);
    commitRecorded(*rowStore_);
    for (SqliteStore* store : {store_.get(), rowStore_.get()}) store->rest();
  }

  void liveDurably() { liveWeek(played_.game); }
  void playWeekDurably() { playWeek(played_.game); }
  void restAfterWeek() { store_->rest(); }

  /// What the player does before the week is committed to the reference too, as to the save that is played.
  void recordLife() {
    recorder_.transactions.clear();
    liveWeek(recorded_.game);
    commitRecorded(*rowStore_);
    recorder_.transactions.clear();
  }
  void recordWeek() { playWeek(recorded_.game); }
  void commitRecorded(Store& store) {
    for (const auto& writes : recorder_.transactions) store.commit(writes);
  }
  void commitRows() { commitRecorded(*rowStore_); }
  void restRows() { rowStore_->rest(); }

  void liveInMemory() { liveWeek(memory_.game); }
  void playWeekInMemory() { playWeek(memory_.game); }

  /// The recorded week again, with every list that a step touched written whole.
  void commitWholeLists() {
    PropertyListWriter writer;
    for (const auto& writes : recorder_.transactions) {
      std::set<std::string> keys;
      for (const Write& write : writes) keys.insert(write.key);
      std::vector<Write> whole;
      forEachField<GameState>([&](const auto& field) {
        if (!keys.contains(std::string(field.key))) return;
        const auto& records = (recorded_.game.state.*field.member).all();
        whole.push_back({std::string(field.key), wholeRow, encodeValue(writer, records)});
      });
      for (const Write& write : writes) {
        if (write.chunk == wholeRow) whole.push_back(write);
      }
      wholeStore_->commit(whole);
    }
  }
  void restWhole() { wholeStore_->rest(); }

  /// Closes the save, so that it can be loaded.
  std::string closedPath() {
    store_.reset();
    return path_.string() + ".played";
  }

  /// Prints how large the career is and what a week writes.
  void describe(const char* years) const {
    size_t streaming = 0;
    for (const Song& song : played_.game.state.saveAllSongList) {
      if (remainingLife(played_.game.state, song) > 0) ++streaming;
    }
    std::printf("year %s: %zu songs, %zu of them streaming\n", years, played_.game.state.saveAllSongList.size(),
                streaming);
    size_t records = 0;
    forEachField<GameState>([&](const auto& field) { records += (played_.game.state.*field.member).size(); });
    size_t rows = 0;
    size_t bytes = 0;
    for (const auto& writes : recorder_.transactions) {
      rows += writes.size();
      for (const Write& write : writes) {
        const auto* object = write.value ? std::get_if<Bytes>(&*write.value) : nullptr;
        bytes += object ? object->size() : sizeof(int64_t);
      }
    }
    std::printf("year %s: %zu records; a week commits %zu times, %zu rows, %zu KB\n", years, records,
                recorder_.transactions.size(), rows, bytes / 1000);
  }

 private:
  std::filesystem::path path_;
  std::unique_ptr<SqliteStore> store_;
  std::unique_ptr<SqliteStore> rowStore_;
  std::unique_ptr<SqliteStore> wholeStore_;
  Recorder recorder_;
  NullStore nowhere_;
  Player played_;
  Player recorded_;
  Player memory_;
};

using Step = std::function<void()>;

/// Runs `before` and `after` outside the measured time of `step`.
void measure(const std::string& name, int repetitions, Step before, Step step, Step after) {
  const auto run = [=](benchmark::State& state) {
    for (auto _ : state) {
      before();
      const auto start = std::chrono::steady_clock::now();
      step();
      const std::chrono::duration<double> took = std::chrono::steady_clock::now() - start;
      after();
      state.SetIterationTime(took.count());
    }
  };
  benchmark::RegisterBenchmark(name.c_str(), run)
      ->Iterations(1)
      ->Repetitions(repetitions)
      ->ReportAggregatesOnly()
      ->UseManualTime()
      ->Unit(benchmark::kMillisecond);
}

void measureWorld(World& world, const std::string& years) {
  const Step nothing = [] {};
  const Step record = [&] {
    world.recordLife();
    world.recordWeek();
  };
  measure(
      "week/" + years, 201, [&] { world.liveDurably(); }, [&] { world.playWeekDurably(); },
      [&] { world.restAfterWeek(); });
  measure(
      "memory/" + years, 501, [&] { world.liveInMemory(); }, [&] { world.playWeekInMemory(); }, nothing);
  measure(
      "rows/" + years, 201, record, [&] { world.commitRows(); }, [&] { world.restRows(); });
  measure(
      "whole/" + years, 5, record, [&] { world.commitWholeLists(); }, [&] { world.restWhole(); });
  measure(
      "rest/" + years, 51, [&] { world.playWeekDurably(); }, [&] { world.restAfterWeek(); }, nothing);
  const auto openSave = [&] { return SqliteStore::open(world.closedPath()).store; };
  measure(
      "load/" + years, 9, nothing,
      [=] {
        const auto store = openSave();
        GameState state;
        benchmark::DoNotOptimize(SaveFile(*store).load(state).readable);
      },
      nothing);
  measure(
      "read/" + years, 9, nothing, [=] { openSave()->visitRows([](std::string_view, int32_t, const Value&) {}); },
      nothing);
}

/// Keeps the median of every measurement for the comparison at the end.
class Medians final : public benchmark::ConsoleReporter {
 public:
  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) {
      if (run.aggregate_name == "median") medians_[run.run_name.function_name] = run.GetAdjustedRealTime();
    }
    ConsoleReporter::ReportRuns(runs);
  }

  double of(const std::string& name) const {
    const auto found = medians_.find(name);
    return found == medians_.end() ? 0 : found->second;
  }

 private:
  std::map<std::string, double> medians_;
};

/// Prints one line of the comparison; whether the goal is met.
bool compare(const char* what, double value, double limit) {
  const bool met = value <= limit;
  std::printf("%-52s %8.3f   goal <= %-7.3f %s\n", what, value, limit, met ? "met" : "MISSED");
  return met;
}

bool compareAll(const Medians& ms) {
  const double week = ms.of("week/100");
  bool met = compare("week at year 100 / SQLite writing the same rows", week / ms.of("rows/100"), 3);
  met &= compare("week at year 100 / week at year 10", week / ms.of("week/10"), 2);
  met &= compare("week at year 100 / every touched list whole", week / ms.of("whole/100"), 0.02);
  met &= compare("week in memory at year 10, milliseconds", ms.of("memory/10"), 0.2);
  met &= compare("load at year 100, milliseconds", ms.of("load/100"), 1000);
  std::printf("load at year 100 / SQLite handing out the rows: %.2f\n", ms.of("load/100") / ms.of("read/100"));
  return met;
}

/// False when a goal is missed.
bool measureAll(const std::filesystem::path& folder) {
  World tenYears(folder, 520);
  World hundredYears(folder, 5200);
  measureWorld(tenYears, "10");
  measureWorld(hundredYears, "100");
  Medians medians;
  benchmark::RunSpecifiedBenchmarks(&medians);
  tenYears.describe("10");
  hundredYears.describe("100");
  return compareAll(medians);
}

}  // namespace
}  // namespace backbeat

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  char folder[] = "/tmp/backbeat-bench-XXXXXX";
  if (mkdtemp(folder) == nullptr) return 2;
  const bool met = backbeat::measureAll(folder);
  std::filesystem::remove_all(folder);
  return met ? 0 : 1;
}
