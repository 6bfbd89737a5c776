#include "shell/page_store.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

#include "core/save_file.h"

namespace backbeat {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using namespace std::string_literals;

/// What the page does: keeps rows as they are, later ones in place of earlier ones.
class Page {
 public:
  void apply(std::string_view batch) {
    while (!batch.empty()) {
      const size_t head = 4 + word(batch, 0) + 4;
      const std::string row(batch.substr(0, head));
      const bool remove = batch[head] != 0;
      const size_t size = head + 1 + 4 + word(batch, head + 1);
      rows.erase(row);
      if (!remove) rows[row] = batch.substr(0, size);
      batch.remove_prefix(size);
    }
  }
  void handTo(PageStore& store) const {
    for (const auto& [id, row] : rows) EXPECT_TRUE(store.addRow(row));
  }

  std::map<std::string, std::string> rows;

 private:
  static size_t word(std::string_view batch, size_t at) {
    size_t result = 0;
    for (size_t i = 4; i-- > 0;) result = result << 8 | static_cast<uint8_t>(batch[at + i]);
    return result;
  }
};

TEST(PageStore, WritesTheRowsThatTheProtocolTells) {
  PageStore store;
  const std::vector<Write> writes = {{"fans", wholeRow, Value(int64_t{258})}, {"x", 3, std::nullopt}};
  EXPECT_TRUE(store.commit(writes));
  EXPECT_EQ(store.takeBatch(),
            "\4\0\0\0fans\xFF\xFF\xFF\xFF\0\x11\0\0\0"
            "1\x5C\x82\xE3\xF0\xC6\x4D\xD9\xDA"
            "\2\1\0\0\0\0\0\0"s
            "\1\0\0\0x\3\0\0\0\1\0\0\0\0"s);
  EXPECT_EQ(store.takeBatch(), "");
}

TEST(PageStore, ASaveSurvivesThePage) {
  Page page;
  GameState state;
  state.totalFans = 98'765'432'109;
  state.totalCashAvailable = -0.0;
  state.myArtistsName = "NUL\0🎤"s;
  {
    PageStore store;
    SaveFile saveFile(store);
    for (int64_t id = 5; id < 45; ++id) state.saveAllSongList.append({.songId = id});
    saveFile.writeList("saveAllSongList", state.saveAllSongList);
    for (const Scalar& scalar : scalars) saveFile.writeScalar(state, scalar);
    state.saveAllSongList.eraseIf([](const Song& song) { return song.songId > 10; });
    saveFile.writeList("saveAllSongList", state.saveAllSongList);
    EXPECT_TRUE(saveFile.commit());
    page.apply(store.takeBatch());
  }
  PageStore store;
  page.handTo(store);
  EXPECT_THAT(differencesFromStore(state, store), IsEmpty());
  store.dropRows();
  EXPECT_THAT(differencesFromStore(GameState(), store), IsEmpty());
}

TEST(PageStore, ADamagedListMovesAsideOnThePage) {
  PageStore first;
  EXPECT_TRUE(first.commit(
      std::vector<Write>{{"saveAllSongList", 0, Value("damaged"s)}, {"totalFans", wholeRow, Value(int64_t{7})}}));
  Page page;
  page.apply(first.takeBatch());
  PageStore second;
  page.handTo(second);
  GameState loaded;
  SaveFile saveFile(second);
  EXPECT_THAT(saveFile.load(loaded).damaged, ElementsAre("saveAllSongList"));
  EXPECT_EQ(loaded.totalFans, 7);
  page.apply(second.takeBatch());
  EXPECT_THAT(page.rows, testing::Contains(testing::Pair(HasSubstr("quarantine/"), testing::EndsWith("damaged"))));

  PageStore third;
  page.handTo(third);
  EXPECT_THAT(SaveFile(third).load(loaded).damaged, IsEmpty()) << "once put aside it is no longer in the way";
}

TEST(PageStore, ARowThatIsNotAsItWasWrittenIsPutAsideAsFound) {
  PageStore source;
  EXPECT_TRUE(source.commit(std::vector<Write>{{"totalFans", wholeRow, Value(int64_t{7})}}));
  Bytes row = source.takeBatch();
  row.back() ^= 1;
  PageStore store;
  EXPECT_TRUE(store.addRow(row));
  GameState loaded;
  EXPECT_THAT(SaveFile(store).load(loaded).damaged, ElementsAre("totalFans"));
  EXPECT_EQ(loaded.totalFans, GameState().totalFans);
  EXPECT_THAT(store.takeBatch(), HasSubstr(row.substr(row.size() - 21)));
}

TEST(PageStore, RowsOfAnOlderVersionAreReadAndGetChecks) {
  PageStore store;
  EXPECT_TRUE(store.addRow("\x09\0\0\0totalFans\xFF\xFF\xFF\xFF\0\x09\0\0\0i\2\1\0\0\0\0\0\0"s));
  store.giveChecks();
  const Bytes checked = store.takeBatch();
  store.giveChecks();
  EXPECT_EQ(store.takeBatch(), "");
  PageStore again;
  EXPECT_TRUE(again.addRow(checked));
  again.giveChecks();
  EXPECT_EQ(again.takeBatch(), "");
  GameState loaded;
  EXPECT_THAT(SaveFile(again).load(loaded).damaged, IsEmpty());
  EXPECT_EQ(loaded.totalFans, 258);
}

TEST(PageStore, RefusesRowsThatAreNone) {
  PageStore source;
  EXPECT_TRUE(source.commit(std::vector<Write>{{"fans", wholeRow, Value(0.5)}}));
  const Bytes row = source.takeBatch();
  PageStore store;
  for (size_t size = 0; size < row.size(); ++size) EXPECT_FALSE(store.addRow(row.substr(0, size))) << size;
  EXPECT_FALSE(store.addRow(row + '\0')) << "more than a row";
  for (const size_t at : {size_t{0}, size_t{12}, size_t{13}, row.find('2')}) {
    Bytes damaged = row;
    damaged[at] = '\x7F';
    EXPECT_FALSE(store.addRow(damaged)) << at;
  }
  EXPECT_TRUE(store.addRow(row));
}

}  // namespace
}  // namespace backbeat
