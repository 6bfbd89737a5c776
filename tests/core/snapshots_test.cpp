#include "core/snapshots.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core/career_file.h"
#include "core/memory_store.h"
#include "core/save_file.h"
#include "shell/native/sqlite_store.h"
#include "support/test_folder.h"

namespace backbeat {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Both stores that keep copies themselves.
class SnapshotsTest : public testing::TestWithParam<const char*> {
 protected:
  SnapshotsTest() {
    if (std::string_view(GetParam()) == "memory") {
      store_ = std::make_unique<MemoryStore>();
    } else {
      store_ = SqliteStore::open(folder_.path / "career.save").store;
    }
  }

  void live(std::string name, int64_t year) {
    state.myArtistsName = std::move(name);
    state.yearNumber = year;
    state.saveAllSongList.append({.songId = year, .title = "Song"});
    ASSERT_TRUE(store_->replaceAll(rowsOf(state)));
  }
  std::vector<std::string> titles() {
    std::vector<std::string> all;
    for (const Snapshot& snapshot : snapshotsOf(*store_)) all.push_back(snapshot.title);
    return all;
  }

  TestFolder folder_;
  std::unique_ptr<CareerStore> store_;
  GameState state;
};

TEST_P(SnapshotsTest, ThreeNewYearsAndOneOfEachOtherKindAreKept) {
  for (int64_t year = 2024; year < 2029; ++year) {
    live("Nova", year);
    EXPECT_TRUE(keepSnapshot(*store_, SnapshotKind::newYear, state));
    EXPECT_TRUE(keepSnapshot(*store_, SnapshotKind::restart, state));
  }
  EXPECT_TRUE(keepSnapshot(*store_, SnapshotKind::import, state));
  EXPECT_THAT(titles(), ElementsAre("Before the import", "Before the restart", "New Year 2028", "New Year 2027",
                                    "New Year 2026"));
  EXPECT_EQ(snapshotsOf(*store_).front().about, "Nova · Week 1, 2028 · $0");
}

TEST_P(SnapshotsTest, ACopyBringsBackTheWholeSave) {
  live("Nova", 2024);
  ASSERT_TRUE(keepSnapshot(*store_, SnapshotKind::newYear, state));
  const GameState then = state;
  live("Somebody | else", 2025);
  const std::string name = snapshotsOf(*store_).front().name;
  EXPECT_FALSE(store_->restoreSnapshot("no such copy"));
  EXPECT_THAT(differencesFromStore(state, *store_), IsEmpty());
  ASSERT_TRUE(store_->restoreSnapshot(name));
  EXPECT_THAT(differencesFromStore(then, *store_), IsEmpty());
  EXPECT_EQ(titles(), std::vector<std::string>{"New Year 2024"}) << "the copy stays";
}

TEST_P(SnapshotsTest, TheSparedOneStays) {
  live("Nova", 2024);
  ASSERT_TRUE(keepSnapshot(*store_, SnapshotKind::restore, state));
  const std::string first = snapshotsOf(*store_).front().name;
  ASSERT_TRUE(keepSnapshot(*store_, SnapshotKind::restore, state, first));
  EXPECT_EQ(snapshotsOf(*store_).back().name, first);
  ASSERT_TRUE(keepSnapshot(*store_, SnapshotKind::restore, state));
  EXPECT_EQ(snapshotsOf(*store_).size(), 1u);
}

TEST(Snapshots, ForeignNamesAreNone) {
  EXPECT_FALSE(readSnapshotName(""));
  EXPECT_FALSE(readSnapshotName("12|newYear|x|y"));
  EXPECT_FALSE(readSnapshotName("000012|holiday|x|y"));
  EXPECT_EQ(readSnapshotName("000012|newYear|x|y|z")->about, "y|z");
}

INSTANTIATE_TEST_SUITE_P(Stores, SnapshotsTest, testing::Values("memory", "sqlite"),
                         [](const auto& store) { return std::string(store.param); });

}  // namespace
}  // namespace backbeat
