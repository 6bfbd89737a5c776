#include "shell/native/rescue_menu.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

#include "core/memory_store.h"
#include "core/snapshots.h"
#include "play/worlds.h"
#include "support/program.h"

namespace backbeat {
namespace {

using testing::HasSubstr;

TEST(RescueMenu, HandsOutTheFileTheCopiesAndOneMoreTry) {
  MemoryStore store;
  settleInto(store, namedWorld("rich"));
  GameState state;
  SaveFile(store).load(state);
  ASSERT_TRUE(keepSnapshot(store, SnapshotKind::newYear, state, Date()));
  const auto now = [] { return Date{1'764'000'000}; };
  const auto typed = [&](const std::string& words, bool expected) {
    std::istringstream in(words);
    std::ostringstream out;
    EXPECT_EQ(rescue(store, "The game stops.", in, out, now), expected) << words;
    return out.str();
  };
  EXPECT_EQ(launchProblem(store, now()), "");
  EXPECT_THAT(typed("", false), HasSubstr("nothing is lost"));
  const std::string file = freshFile("rescued.plist");
  EXPECT_THAT(typed("export " + file + "\ncopies\nquit\n", false), HasSubstr("New Year"));
  EXPECT_NE(contentOf(file), "");
  EXPECT_THAT(typed("export " + file + "\n", false), HasSubstr("--force"));
  typed("again\n", true);
  store.rows[{"totalFans", wholeRow}] = int64_t{5};
  EXPECT_THAT(typed("restore 9\nrestore 1\n", true), HasSubstr("Type the number"));
  SaveFile(store).load(state);
  EXPECT_NE(state.totalFans, 5);
  EXPECT_EQ(snapshotsOf(store).size(), 2u) << "what stopped the game is kept as well";
}

}  // namespace
}  // namespace backbeat
