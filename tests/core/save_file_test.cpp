#include "core/save_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>

#include "core/memory_store.h"
#include "core/record_codec.h"
#include "support/small_career.h"

namespace backbeat {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

void writeAll(SaveFile& saveFile, GameState& state) {
  for (const auto& [key, list] : listsOf(state)) saveFile.writeList(key, list);
  for (const Scalar& scalar : scalars) saveFile.writeScalar(state, scalar);
}

const Scalar& scalarNamed(std::string_view key) {
  return *std::find_if(scalars.begin(), scalars.end(), [&](const Scalar& scalar) { return scalar.key == key; });
}

class SaveFileTest : public testing::Test {
 protected:
  SaveFileTest() {
    writeAll(saveFile, state);
    EXPECT_TRUE(saveFile.commit());
  }

  MemoryStore store;
  SaveFile saveFile{store};
  GameState state = smallCareer();
};

TEST_F(SaveFileTest, BringsBackEverythingButTheWriteOnlyScalars) {
  state.foodEnergyBonus = 30;
  writeAll(saveFile, state);
  EXPECT_TRUE(saveFile.commit());
  EXPECT_THAT(differencesFromStore(state, store), IsEmpty());
  GameState loaded;
  EXPECT_THAT(saveFile.load(loaded).damaged, IsEmpty());
  EXPECT_EQ(loaded.foodEnergyBonus, 0);
  EXPECT_EQ(std::get<int64_t>(store.rows.at({"foodEnergyBonus", wholeRow})), 30);
  loaded.foodEnergyBonus = 30;
  EXPECT_EQ(loaded, state);
  EXPECT_EQ(stateHash(loaded), stateHash(state));
}

TEST_F(SaveFileTest, AnEmptyListIsThereAndEmpty) {
  EXPECT_TRUE(store.rows.contains({"saveAllFestivalList", 0}));
  state.saveAllSongList.clear();
  saveFile.writeList("saveAllSongList", state.saveAllSongList);
  EXPECT_TRUE(saveFile.commit());
  EXPECT_TRUE(store.rows.contains({"saveAllSongList", 0}));
  EXPECT_FALSE(store.rows.contains({"saveAllSongList", 1}));
  EXPECT_THAT(differencesFromStore(state, store), IsEmpty());
}

TEST_F(SaveFileTest, AFailingStoreLosesNothingAndTheWaitingWritesStayFew) {
  EXPECT_FALSE(saveFile.failing());
  store.failNext(1000);
  for (int week = 0; week < 1000; ++week) {
    state.totalFans += 1;
    state.saveAllSongList.update(week % 8, [](Song& song) { ++song.totalListen; });
    if (week == 500) state.saveAllChirpList.clear();
    saveFile.writeScalar(state, scalarNamed("totalFans"));
    saveFile.writeList("saveAllSongList", state.saveAllSongList);
    saveFile.writeList("saveAllChirpList", state.saveAllChirpList);
    EXPECT_FALSE(saveFile.commit());
    EXPECT_TRUE(saveFile.failing());
  }
  EXPECT_THAT(differencesFromStore(state, store), testing::Contains("totalFans"));
  const int64_t before = store.rowWrites;
  EXPECT_TRUE(saveFile.commit());
  EXPECT_FALSE(saveFile.failing());
  EXPECT_LT(store.rowWrites - before, 20);
  EXPECT_THAT(differencesFromStore(state, store), IsEmpty());
  const int64_t commits = store.commits;
  EXPECT_TRUE(saveFile.commit());
  EXPECT_EQ(store.commits, commits) << "nothing to write";
}

TEST_F(SaveFileTest, AScalarOfAnotherKindKeepsItsDefaultUnlessItFits) {
  PropertyListWriter writer;
  const auto loadedWith = [&](std::string key, Value value) {
    MemoryStore other;
    other.rows[{std::move(key), wholeRow}] = std::move(value);
    GameState loaded;
    SaveFile(other).load(loaded);
    return loaded;
  };
  EXPECT_EQ(loadedWith("weekNumber", 12.0).weekNumber, 12);
  for (const Value& value : {Value(12.5), Value(notANumber), Value(0x1p63), Value(encodeValue(writer, int64_t{12}))}) {
    EXPECT_EQ(loadedWith("weekNumber", value).weekNumber, 1);
  }
  EXPECT_EQ(loadedWith("weekNumber", -0x1p63).weekNumber, 1) << "fits, but no calendar has it";
  EXPECT_EQ(loadedWith("streamingPayRate", int64_t{2}).streamingPayRate, 2.0);
  EXPECT_EQ(loadedWith("streamingPayRate", Bytes("damaged")).streamingPayRate, 0.001);
  EXPECT_EQ(loadedWith("typeOfOffice", encodeValue(writer, std::string("LOFT"))).typeOfOffice, "LOFT");
  EXPECT_EQ(loadedWith("typeOfOffice", encodeValue(writer, 3.5)).typeOfOffice, "GARAGE");
  EXPECT_EQ(loadedWith("typeOfOffice", int64_t{3}).typeOfOffice, "GARAGE");
}

TEST_F(SaveFileTest, ADamagedListIsPutAsideAloneAndTheNextSaveIsWhole) {
  const std::pair songOrder("saveAllSongList", orderRow);
  const std::pair songChunk("saveAllSongList", 2);
  using Damage = std::function<void(MemoryStore::Rows&)>;
  PropertyListWriter writer;
  const std::vector<std::pair<const char*, Damage>> damages = {
      {"an unreadable row", [&](auto& rows) { rows[songChunk] = Bytes("bplist00 but not quite"); }},
      {"records of another kind",
       [&](auto& rows) {
         rows[songChunk] = rows[{"saveAllMerchReleasedList", 0}];
       }},
      {"a number", [&](auto& rows) { rows[songChunk] = int64_t{3}; }},
      {"a missing row in the middle", [&](auto& rows) { rows.erase(songChunk); }},
      {"a missing last row",
       [&](auto& rows) {
         rows.erase({"saveAllSongList", 4});
       }},
      {"a row too many",
       [&](auto& rows) {
         rows[{"saveAllSongList", 2'000'000'000}] = rows[songChunk];
       }},
      {"a whole row too",
       [&](auto& rows) {
         rows[{"saveAllSongList", wholeRow}] = rows[songChunk];
       }},
      {"no order", [&](auto& rows) { rows.erase(songOrder); }},
      {"an order with a repetition",
       [&](auto& rows) { rows[songOrder] = writer.finish(writer.data(Bytes(160, '\0'))); }},
      {"an order of odd length", [&](auto& rows) { rows[songOrder] = writer.finish(writer.data(Bytes(3, '\0'))); }}};
  const MemoryStore::Rows intact = store.rows;
  for (const auto& [name, damage] : damages) {
    SCOPED_TRACE(name);
    store.rows = intact;
    store.quarantined.clear();
    damage(store.rows);
    EXPECT_THAT(differencesFromStore(state, store), ElementsAre("saveAllSongList"));
    EXPECT_THAT(store.quarantined, IsEmpty()) << "comparing moves nothing";

    GameState loaded;
    SaveFile again(store);
    EXPECT_THAT(again.load(loaded).damaged, ElementsAre("saveAllSongList"));
    EXPECT_GE(store.quarantined.size(), 5u);
    EXPECT_TRUE(loaded.saveAllSongList.empty());
    EXPECT_EQ(loaded.saveAllChirpList, state.saveAllChirpList);
    EXPECT_EQ(loaded.totalFans, state.totalFans);

    loaded.saveAllSongList.append({.songId = 777});
    again.writeList("saveAllSongList", loaded.saveAllSongList);
    EXPECT_TRUE(again.commit());
    EXPECT_THAT(differencesFromStore(loaded, store), IsEmpty());
  }
}

TEST_F(SaveFileTest, TheNextSaveIsWholeEvenWhenNothingCouldBePutAside) {
  struct Stubborn final : Store {
    explicit Stubborn(MemoryStore& rows) : inner(rows) {}
    bool commit(std::span<const Write> writes) override { return inner.commit(writes); }
    bool visitRows(const std::function<void(std::string_view, int32_t, const Value&)>& visit) override {
      return inner.visitRows(visit);
    }
    void quarantine(std::string_view) override {}
    MemoryStore& inner;
  } stubborn(store);
  store.rows.erase({"saveAllSongList", 1});
  GameState loaded;
  SaveFile again(stubborn);
  again.load(loaded);
  loaded.saveAllSongList.append({.songId = 777});
  again.writeList("saveAllSongList", loaded.saveAllSongList);
  EXPECT_TRUE(again.commit());
  EXPECT_THAT(differencesFromStore(loaded, store), IsEmpty());
}

TEST_F(SaveFileTest, AListCutOtherwiseIsReadAndCutAnew) {
  PropertyListWriter writer;
  MemoryStore other;
  for (int32_t chunk = 0; chunk < 20; ++chunk) {
    const std::vector<Album> two = {{.albumId = chunk * 2}, {.albumId = chunk * 2 + 1}};
    other.rows[{"saveAllAlbumList", chunk}] = encodeValue(writer, two);
  }
  SaveFile again(other);
  GameState loaded;
  EXPECT_THAT(again.load(loaded).damaged, IsEmpty());
  ASSERT_EQ(loaded.saveAllAlbumList.size(), 40u);
  loaded.saveAllAlbumList.update(17, [](Album& album) { album.title = "Changed"; });
  again.writeList("saveAllAlbumList", loaded.saveAllAlbumList);
  EXPECT_TRUE(again.commit());
  EXPECT_EQ(other.rows.size(), 5u + 1u) << "and how many they are";
  EXPECT_THAT(differencesFromStore(loaded, other), IsEmpty());
}

TEST_F(SaveFileTest, AnObjectUnderAnUnknownKeyCanBeRead) {
  PropertyListWriter writer;
  const std::vector<Song> songs = {{.songId = 3, .title = "Old"}};
  store.rows[{"oldName", wholeRow}] = encodeValue(writer, songs);
  GameState loaded;
  SaveFile again(store);
  EXPECT_THAT(again.load(loaded).damaged, IsEmpty());
  EXPECT_EQ(decodeRecords<Song>(again.object("oldName").value_or("")), songs);
  EXPECT_EQ(again.object("totalFans"), std::nullopt);
}

TEST_F(SaveFileTest, TheHashSeesEveryValueAndNotHowItIsStored) {
  const uint64_t hash = stateHash(state);
  std::vector<uint64_t> hashes = {hash};
  const auto withChange = [&](auto&& change) {
    GameState changed = state;
    change(changed);
    hashes.push_back(stateHash(changed));
  };
  for (const Scalar& scalar : scalars) {
    if (const auto* whole = std::get_if<int64_t GameState::*>(&scalar.member)) {
      withChange([&](GameState& changed) { changed.** whole += 1; });
    }
  }
  withChange([](GameState& changed) { changed.totalCashAvailable = -0.0; });
  withChange([](GameState& changed) { changed.totalCashAvailable = 0.0; });
  withChange([](GameState& changed) { changed.myArtistsName += '\0'; });
  withChange([](GameState& changed) { changed.songDictionary["k"] = "u"; });
  withChange([](GameState& changed) { changed.saveAllChirpList.erase(3); });
  withChange([](GameState& changed) {
    changed.saveAllMerchReleasedList.update(0, [](Merch& merch) { merch.songList[0].features = {""}; });
  });
  std::sort(hashes.begin(), hashes.end());
  EXPECT_EQ(std::adjacent_find(hashes.begin(), hashes.end()), hashes.end());

  GameState sameInOtherSlots = state;
  sameInOtherSlots.saveAllSongList.assign({state.saveAllSongList.begin(), state.saveAllSongList.end()});
  EXPECT_EQ(stateHash(sameInOtherSlots), hash);
  state.totalCashAvailable = notANumber;
  const uint64_t withNan = stateHash(state);
  state.totalCashAvailable = -notANumber;
  EXPECT_EQ(stateHash(state), withNan);
}

TEST(SaveFileWithoutStore, KeepsNoWrites) {
  NullStore store;
  SaveFile saveFile(store);
  GameState state = smallCareer();
  writeAll(saveFile, state);
  EXPECT_THAT(state.saveAllSongList.changedChunks(), IsEmpty());
  EXPECT_TRUE(saveFile.commit());
}

}  // namespace
}  // namespace backbeat
