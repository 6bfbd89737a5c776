#include "core/record_list.h"

#include <gtest/gtest.h>

#include <random>

#include "core/memory_store.h"
#include "core/save_file.h"

namespace backbeat {
namespace {

/// What the test needs to know of one list of the state: its member, and a number that tells records apart.
template <auto listMember, auto numberMember>
struct Case {
  static auto& list(GameState& state) { return state.*listMember; }
  using Record = std::decay_t<decltype(std::declval<GameState&>().*listMember)>;
  using T = std::decay_t<decltype(std::declval<Record&>()[0])>;
  static auto key(const T& record) { return record.*numberMember; }
  static T make(int64_t number) {
    T record;
    record.*numberMember = static_cast<std::decay_t<decltype(record.*numberMember)>>(number);
    return record;
  }
  static std::string_view name() {
    std::string_view found;
    forEachField<GameState>([&](const auto& field) {
      if constexpr (std::is_same_v<decltype(field.member), decltype(listMember)>) found = field.key;
    });
    return found;
  }
};

template <class C>
class RecordListTest : public testing::Test {
 protected:
  using T = typename C::T;

  auto& list() { return C::list(state); }
  uint32_t below(size_t limit) { return static_cast<uint32_t>(random() % limit); }
  T next() { return C::make(static_cast<int64_t>(below(50))); }
  T fresh() { return C::make(++counter); }

  void save() {
    saveFile.writeList(C::name(), list());
    ASSERT_TRUE(saveFile.commit());
  }

  /// Every row as a save of the whole list would write it.
  MemoryStore::Rows rowsOfWholeList() {
    MemoryStore fresh;
    SaveFile all(fresh);
    auto copy = list();
    all.writeList(C::name(), copy);
    all.commit();
    return fresh.rows;
  }

  bool growsAtHead() { return list().layout().order == ListLayout::Order::front; }

  void add(bool atHead) {
    const T record = next();
    atHead ? list().insertFront(record) : list().append(record);
    model.insert(atHead ? model.begin() : model.end(), record);
  }

  /// One random change, done to the list and to the plain vector.
  void change() {
    const uint32_t dice = below(1000);
    const size_t at = model.empty() ? 0 : below(model.size());
    if (dice == 0) {
      list().clear();
      model.clear();
    } else if (dice == 1) {
      model.assign(below(600), fresh());
      list().assign(model);
    } else if (dice < 50) {
      add(!growsAtHead());
    } else if (dice < 550 || model.empty()) {
      add(growsAtHead());
    } else if (dice < 850) {
      model[at] = next();
      list().update(at, [&](T& record) { record = model[at]; });
    } else if (dice < 930) {
      model.erase(model.begin() + static_cast<std::ptrdiff_t>(at));
      list().erase(at);
    } else if (dice < 970) {
      const auto goes = [gone = below(50)](const T& record) { return static_cast<uint32_t>(C::key(record)) == gone; };
      EXPECT_EQ(list().eraseIf(goes), std::erase_if(model, goes));
    } else {
      std::stable_sort(model.begin(), model.end(), [](const T& a, const T& b) { return C::key(a) > C::key(b); });
      list().sortDescending(C::key);
    }
  }

  void expectHistoryAgrees() {
    if constexpr (historyKeyOf<T> != nullptr) {
      for (int64_t id = 0; id < 50; ++id) {
        std::vector<uint32_t> filtered;
        for (uint32_t i = 0; i < model.size(); ++i) {
          if (model[i].*historyKeyOf<T> == id) filtered.push_back(i);
        }
        const auto indexed = list().historyOf(id);
        EXPECT_EQ(std::vector(indexed.begin(), indexed.end()), filtered);
      }
    }
  }

  GameState state;
  MemoryStore store;
  SaveFile saveFile{store};
  std::vector<T> model;
  std::mt19937_64 random{7};
  int64_t counter = 100;
};

using Cases = testing::Types<Case<&GameState::saveAllSongList, &Song::totalListen>,
                             Case<&GameState::saveAllBillboardSongList, &BillboardSong::songId>,
                             Case<&GameState::saveAllAlbumList, &Album::albumId>,
                             Case<&GameState::saveAllWeeklySongListens, &WeeklySongListens::songId>,
                             Case<&GameState::saveAllChirpList, &Chirp::likeCount>>;
TYPED_TEST_SUITE(RecordListTest, Cases);

TYPED_TEST(RecordListTest, AgreesWithAPlainVectorAndItsStoreWithAWholeSave) {
  for (int step = 0; step < 2000; ++step) {
    this->change();
    ASSERT_EQ(std::vector(this->list().begin(), this->list().end()), this->model) << "step " << step;
    if (this->below(6) != 0) continue;
    this->save();
    ASSERT_EQ(differencesFromStore(this->state, this->store), std::vector<std::string>()) << "step " << step;
    // Slots that a fresh save would hand out anew are compared through the loading above.
    if (this->list().layout().order != ListLayout::Order::slots) {
      ASSERT_EQ(this->store.rows, this->rowsOfWholeList()) << "step " << step;
    }
    if (this->below(10) != 0) continue;
    this->expectHistoryAgrees();
    GameState loaded;
    EXPECT_TRUE(this->saveFile.load(loaded).damaged.empty());
    this->state = std::move(loaded);
  }
}

TYPED_TEST(RecordListTest, SavesOnlyTheRowsThatChanged) {
  // One more than fill whole chunks: a new chunk would be one row more, and the count of the rows another.
  for (int i = 0; i < 1001; ++i) this->list().append(this->fresh());
  this->save();
  const auto rowsWritten = [&](auto&& change) {
    const int64_t before = this->store.rowWrites;
    change(this->list());
    this->save();
    return this->store.rowWrites - before;
  };
  const bool atHead = this->growsAtHead();
  const bool inSlots = this->list().layout().order == ListLayout::Order::slots;
  const auto grow = [&](auto& list) { atHead ? list.insertFront(this->fresh()) : list.append(this->fresh()); };
  EXPECT_EQ(rowsWritten([](auto&) {}), 0);
  EXPECT_EQ(rowsWritten([](auto& list) { list.update(500, [](auto&) {}); }), 1);
  EXPECT_EQ(rowsWritten(grow), 1) << "what is added stands at the end without being named in the stored order";
  EXPECT_LE(rowsWritten([&](auto& list) { list.erase(atHead ? 0 : list.size() - 1); }), inSlots ? 2 : 1);
  if (inSlots) {
    EXPECT_EQ(rowsWritten([](auto& list) { list.sortDescending(TypeParam::key); }), 1);
    EXPECT_LE(rowsWritten([](auto& list) { list.erase(400); }), 4);
  }
}

TEST(RecordListAssignment, MakesTheStoreForgetWhatItHeld) {
  MemoryStore store;
  SaveFile saveFile(store);
  GameState state;
  for (int64_t id = 5; id < 25; ++id) state.saveAllSongList.append({.songId = id});
  saveFile.writeList("saveAllSongList", state.saveAllSongList);
  state = GameState();
  saveFile.writeList("saveAllSongList", state.saveAllSongList);
  ASSERT_TRUE(saveFile.commit());
  EXPECT_TRUE(differencesFromStore(state, store).empty());
}

TEST(RecordListSort, LeavesEqualKeysInTheirOrderAndSurvivesNoNumber) {
  RecordList<Song> songs(sorted);
  for (const double score : {3.0, 9.0, 3.0, std::numeric_limits<double>::quiet_NaN(), 9.0}) {
    songs.append({.songId = static_cast<int64_t>(songs.size()), .viralityScore = score});
  }
  songs.eraseIf([](const Song& song) { return song.songId == 3; });
  songs.sortDescending([](const Song& song) { return song.viralityScore; });
  std::vector<int64_t> ids;
  for (const Song& song : songs) ids.push_back(song.songId);
  EXPECT_EQ(ids, (std::vector<int64_t>{1, 4, 0, 2}));
  songs.append({.songId = 9, .viralityScore = std::numeric_limits<double>::quiet_NaN()});
  songs.sortDescending([](const Song& song) { return song.viralityScore; });
  EXPECT_EQ(songs.size(), 5u);
}

}  // namespace
}  // namespace backbeat
