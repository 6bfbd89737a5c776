// A career of many more rows than a life brings loads in a time and a memory that follow from its size. With more rows:
//   BACKBEAT_ROWS=4000000 backbeat_tests --gtest_filter='LargeCareer.*'
#include <gtest/gtest.h>

#include <cstdlib>
#include <iostream>

#include "core/save_file.h"
#include "shell/native/sqlite_store.h"
#include "support/program.h"
#include "support/weighed.h"

namespace backbeat {
namespace {

constexpr int64_t rowsOfTheCheck = 40'000;
constexpr double secondsToStart = 0.5;
constexpr double microsecondsEach = 8;
constexpr double megabytesToStart = 40;
constexpr double bytesEach = 600;

TEST(LargeCareer, LoadsInATimeAndAMemoryThatFollowFromItsSize) {
  const char* asked = std::getenv("BACKBEAT_ROWS");
  const int64_t rows = asked ? std::atoll(asked) : rowsOfTheCheck;
  const std::string save = freshFile("large.save");
  const auto written = [&] {
    const SqliteStore::Opened opened = SqliteStore::open(save);
    GameState state;
    for (int64_t id = 0; id < rows; ++id) {
      state.saveAllWeeklySongListens.append({.songId = id % 5'000, .songListens = id});
    }
    SaveFile saveFile(*opened.store);
    saveFile.writeList("saveAllWeeklySongListens", state.saveAllWeeklySongListens);
    return saveFile.commit();
  };
  ASSERT_TRUE(weighed(written).ended);
  const auto reads = [&] {
    const SqliteStore::Opened opened = SqliteStore::open(save);
    GameState state;
    const LoadReport report = SaveFile(*opened.store).load(state);
    return report.damaged.empty() && report.lost == 0 &&
           static_cast<int64_t>(state.saveAllWeeklySongListens.size()) == rows;
  };
  const Weight load = weighed(reads);
  EXPECT_TRUE(load.ended);
  std::cout << rows << " rows load in " << load.seconds << " s and " << load.megabytes << " MB\n";
  if (isSanitized()) return;
  EXPECT_LT(load.seconds, secondsToStart + static_cast<double>(rows) * microsecondsEach / 1e6);
  EXPECT_LT(load.megabytes, megabytesToStart + static_cast<double>(rows) * bytesEach / 1e6);
}

}  // namespace
}  // namespace backbeat
