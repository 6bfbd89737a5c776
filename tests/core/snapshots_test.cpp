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

  /// Another career of that name, or the same one further on, is what the store holds.
  void live(std::string name, int64_t year) {
    state.myArtistsName = std::move(name);
    state.yearNumber = year;
    state.saveAllSongList.append({.songId = ++song_, .title = "Song"});
    ASSERT_TRUE(store_->replaceAll(rowsOf(state)));
  }
  bool keep(SnapshotKind kind, std::string_view spared = {}) {
    return keepSnapshot(*store_, kind, state, Date{1'764'000'000}, spared);
  }
  std::vector<std::string> kept(SnapshotKind kind) {
    std::vector<std::string> all;
    for (const Snapshot& each : snapshotsOf(*store_)) {
      if (each.kind == kind) all.push_back(each.artist + " " + std::to_string(each.week / 52));
    }
    return all;
  }

  TestFolder folder_;
  std::unique_ptr<CareerStore> store_;
  GameState state;

 private:
  int64_t song_ = 0;
};

TEST_P(SnapshotsTest, FiveOfEachKindAreKeptAndAPlanSaysFirstWhatGoes) {
  for (int64_t year = 2024; year < 2031; ++year) {
    live("Nova", year);
    const std::string goes = planSnapshot(*store_, SnapshotKind::restart, state).told();
    EXPECT_EQ(goes.find("Week 1, " + std::to_string(year - 5)) != goes.npos, year >= 2029) << goes;
    EXPECT_TRUE(keep(SnapshotKind::restart));
    live("Nova", year);
    EXPECT_TRUE(keep(SnapshotKind::newYear));
  }
  EXPECT_THAT(kept(SnapshotKind::restart),
              ElementsAre("Nova 2030", "Nova 2029", "Nova 2028", "Nova 2027", "Nova 2026"));
  EXPECT_THAT(kept(SnapshotKind::newYear),
              ElementsAre("Nova 2030", "Nova 2029", "Nova 2028", "Nova 2027", "Nova 2026"));
  const Snapshot newest = snapshotsOf(*store_).front();
  EXPECT_EQ(newest.told(), "\"New Year 2030\" (Nova · Week 1, 2030 · $0)");
  EXPECT_EQ(newest.taken, Date{1'764'000'000});
  EXPECT_GT(newest.bytes, 0);
}

TEST_P(SnapshotsTest, ACopyBringsBackTheWholeSave) {
  live("Nova", 2024);
  ASSERT_TRUE(keep(SnapshotKind::newYear));
  const GameState then = state;
  live("Somebody · Week | else", 2025);
  const std::string name = snapshotsOf(*store_).front().name;
  EXPECT_FALSE(store_->restoreSnapshot("no such copy"));
  EXPECT_THAT(differencesFromStore(state, *store_), IsEmpty());
  ASSERT_TRUE(keep(SnapshotKind::restore));
  ASSERT_TRUE(store_->restoreSnapshot(name));
  EXPECT_THAT(differencesFromStore(then, *store_), IsEmpty());
  ASSERT_TRUE(store_->restoreSnapshot(snapshotsOf(*store_).front().name));
  EXPECT_THAT(differencesFromStore(state, *store_), IsEmpty());
  EXPECT_THAT(kept(SnapshotKind::newYear), ElementsAre("Nova 2024")) << "the copy stays";
  EXPECT_THAT(kept(SnapshotKind::restore), ElementsAre("Somebody · Week | else 2025"));
}

TEST_P(SnapshotsTest, GoingBackNeverPushesOutTheFurthestWeekOfACareer) {
  live("Nova", 2090);
  ASSERT_TRUE(keep(SnapshotKind::restore));
  live("Ada", 2040);
  ASSERT_TRUE(keep(SnapshotKind::restore));
  for (int64_t year = 2030; year < 2040; ++year) {
    live("Nova", year);
    const std::string first = snapshotsOf(*store_).back().name;
    ASSERT_TRUE(keep(SnapshotKind::restore, first));
  }
  EXPECT_THAT(kept(SnapshotKind::restore), ElementsAre("Nova 2039", "Nova 2038", "Nova 2037", "Ada 2040", "Nova 2090"));
}

TEST_P(SnapshotsTest, TheSameCareerIsKeptOnceAndANewYearDoesNotTakeItAlong) {
  live("Nova", 2024);
  ASSERT_TRUE(keep(SnapshotKind::import));
  ASSERT_TRUE(keep(SnapshotKind::restart));
  ASSERT_TRUE(keep(SnapshotKind::newYear));
  EXPECT_EQ(snapshotsOf(*store_).size(), 1u);
  live("Nova", 2025);
  ASSERT_TRUE(keep(SnapshotKind::newYear));
  ASSERT_TRUE(keep(SnapshotKind::restart));
  EXPECT_THAT(kept(SnapshotKind::newYear), IsEmpty()) << "the New Years of the next life would push it out";
  EXPECT_THAT(kept(SnapshotKind::restart), ElementsAre("Nova 2025"));
}

/// A store whose copies take much room.
class HeavyStore final : public MemoryStore {
 public:
  std::vector<KeptCopy> snapshots() override {
    std::vector<KeptCopy> kept = MemoryStore::snapshots();
    for (KeptCopy& copy : kept) copy.bytes = snapshotBudget / 3 + 1;
    return kept;
  }
};

TEST(Snapshots, BeyondTheBudgetANewYearIsNotKeptAndWhatElseIsKeptCostsTheLeastMissed) {
  HeavyStore store;
  GameState state;
  const auto keep = [&](SnapshotKind kind, int64_t year) {
    state.yearNumber = year;
    return keepSnapshot(store, kind, state, Date());
  };
  EXPECT_TRUE(keep(SnapshotKind::restart, 2050));
  EXPECT_TRUE(keep(SnapshotKind::newYear, 2024));
  EXPECT_TRUE(keep(SnapshotKind::newYear, 2025));
  EXPECT_FALSE(keep(SnapshotKind::newYear, 2026));
  EXPECT_EQ(snapshotsOf(store).size(), 3u);
  EXPECT_EQ(dispensableSnapshot(store)->title, "New Year 2024") << "not the furthest of the career";
  EXPECT_THAT(planSnapshot(store, SnapshotKind::import, state).told(), testing::HasSubstr("New Year 2024"));
  EXPECT_TRUE(keep(SnapshotKind::import, 2026));
  EXPECT_EQ(snapshotsOf(store).back().title, "Before the restart");
  EXPECT_EQ(snapshotsOf(store).size(), 3u);
}

TEST(Snapshots, ForeignNamesAreNone) {
  EXPECT_FALSE(readSnapshotName(""));
  EXPECT_FALSE(readSnapshotName("12|newYear|x|y"));
  EXPECT_FALSE(readSnapshotName("000012|holiday|x|y"));
  EXPECT_EQ(readSnapshotName("000012|newYear|x|y|z")->about, "y|z");
  EXPECT_FALSE(readSnapshotName("000012|newYear|x|y|z")->taken) << "of an older version";
}

INSTANTIATE_TEST_SUITE_P(Stores, SnapshotsTest, testing::Values("memory", "sqlite"),
                         [](const auto& store) { return std::string(store.param); });

}  // namespace
}  // namespace backbeat
