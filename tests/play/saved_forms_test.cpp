// A save of every form that was ever released loads for ever. The files in saves/ are never made anew: what they hold
// was written by the game of their day. When the form changes, this writes the file of the new form beside them,
// leaving those that are there alone; add it to the table:
//   BACKBEAT_KEEP_FORM=1 backbeat_tests --gtest_filter='SavedForms.*'
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>

#include "core/career_file.h"
#include "play/golden_careers.h"
#include "shell/native/sqlite_store.h"
#include "shell/page_store.h"
#include "support/program.h"

namespace backbeat {
namespace {

const std::string folder = BACKBEAT_SOURCE_DIR "/tests/play/saves/";
// Form 1 kept no copies yet, form 2 did not pack them, form 3 and the first one of a page had no checks.
constexpr const char* databases[] = {"computer_1.save", "computer_2.save", "computer_3.save", "computer_4.save"};
constexpr const char* pages[] = {"page_1.rows", "page_2.rows"};
constexpr const char* careerFile = "career_1.plist";

/// Plays twelve weeks of the golden year and keeps a copy at their end.
void playInto(Store& store) {
  QuietPlatform platform;
  TraceRecorder career(store, platform);
  for (const TraceEvent& event : goldenCareer("golden_year").events) {
    career.play(event);
    if (career.session().game().state.weekNumberForTracking > 12) break;
  }
  EXPECT_TRUE(keepSnapshot(store, SnapshotKind::newYear, career.session().game().state, Date()));
}

/// What a page keeps of the store's rows: each as a batch would bring it.
Bytes asPageRows(Store& store) {
  PageStore page;
  std::vector<Write> rows;
  store.visitRows([&](std::string_view key, int32_t chunk, const Value& value) {
    rows.push_back({std::string(key), chunk, value});
  });
  page.commit(rows);
  return page.takeBatch();
}

GameState loaded(Store& store) {
  GameState state;
  const LoadReport report = SaveFile(store).load(state);
  EXPECT_TRUE(report.readable && report.damaged.empty() && report.lost == 0);
  return state;
}

/// The end of the row that begins at `at` in a batch.
size_t endOfRow(const Bytes& batch, size_t at) {
  const auto word = [&](size_t place) {
    size_t number = 0;
    for (size_t i = 4; i-- > 0;) number = number << 8 | static_cast<uint8_t>(batch.at(place + i));
    return number;
  };
  const size_t value = at + 4 + word(at) + 4 + 1;
  return value + 4 + word(value);
}

void expectTheCareer(const GameState& state) {
  EXPECT_EQ(state.weekNumberForTracking, 13);
  EXPECT_EQ(state.yearNumber, 2023);
  EXPECT_EQ(state.saveAllSongList.size(), 4u);
  EXPECT_EQ(state.saveAllWeeklySongListens.size(), 13u);
  EXPECT_EQ(state.myArtistsName, "Zoë Falk");
}

TEST(SavedForms, LoadForEver) {
  GameState first;
  for (const char* database : databases) {
    SCOPED_TRACE(database);
    const std::string copy = freshFile(database);
    writeFile(copy, contentOf(folder + database));
    const SqliteStore::Opened opened = SqliteStore::open(copy);
    ASSERT_TRUE(opened.store) << opened.problem;
    first = loaded(*opened.store);
    expectTheCareer(first);
    EXPECT_TRUE(keepSnapshot(*opened.store, SnapshotKind::restart, first, Date()))
        << "an old form learns to keep copies";
    for (const Snapshot& kept : snapshotsOf(*opened.store)) {
      EXPECT_TRUE(opened.store->restoreSnapshot(kept.name));
      EXPECT_EQ(differencesFromStore(first, *opened.store), std::vector<std::string>()) << kept.name;
    }
  }

  const ImportedCareer career = importCareer(contentOf(folder + careerFile));
  ASSERT_TRUE(career.state) << career.problem;
  for (const char* file : pages) {
    SCOPED_TRACE(file);
    PageStore page;
    const Bytes rows = contentOf(folder + file);
    for (size_t at = 0; at < rows.size();) {
      const size_t end = endOfRow(rows, at);
      EXPECT_TRUE(page.addRow(std::string_view(rows).substr(at, end - at)));
      at = end;
    }
    EXPECT_EQ(loaded(page), first);
    EXPECT_EQ(loaded(page), *career.state);
  }
}

TEST(SavedForms, TodaysIsAmongThem) {
  const std::string fresh = freshFile("today.save");
  {
    const SqliteStore::Opened opened = SqliteStore::open(fresh);
    ASSERT_TRUE(opened.store) << opened.problem;
    playInto(*opened.store);
    if (std::getenv("BACKBEAT_KEEP_FORM")) {
      const GameState state = loaded(*opened.store);
      const auto keep = [](const std::string& name, const Bytes& content) {
        if (!std::filesystem::exists(folder + name)) writeFile(folder + name, content);
      };
      keep(std::end(pages)[-1], asPageRows(*opened.store));
      keep(careerFile, exportCareer(state));
    }
  }
  if (std::getenv("BACKBEAT_KEEP_FORM") && !std::filesystem::exists(folder + std::end(databases)[-1])) {
    writeFile(folder + std::end(databases)[-1], contentOf(fresh));
  }
  constexpr size_t formAt = 60;  // of a database's head: the number of its form, four bytes
  EXPECT_EQ(contentOf(fresh).substr(formAt, 4), contentOf(folder + std::end(databases)[-1]).substr(formAt, 4))
      << "the form of a save has changed: keep one of it";
}

}  // namespace
}  // namespace backbeat
