#include "core/record_list.h"

#include <gtest/gtest.h>

#include <numeric>
#include <random>
#include <span>

#include "core/memory_store.h"
#include "core/save_file.h"
#include "core/week_rows.h"

namespace backbeat {
namespace {

/// What the test needs to know of one list of the state: its member, and a number that tells records apart.
template <auto listMember, auto numberMember>
struct Case {
  static auto& list(GameState& state) { return state.*listMember; }
  using Record = std::decay_t<decltype(std::declval<GameState&>().*listMember)>;
  using T = std::decay_t<decltype(std::declval<Record&>()[0])>;
  static constexpr auto member = numberMember;
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
    asleep.insert(atHead ? asleep.begin() : asleep.end(), false);
    if (atHead && !inSlots()) wakeAll();
  }

  void wakeAll() { asleep.assign(model.size(), false); }

  /// Records with even numbers are silent.
  void letSleep() {
    list().letSleep([](const T& record) { return static_cast<int64_t>(C::key(record)) % 2 == 0; });
    for (size_t i = 0; i < model.size(); ++i) {
      if (static_cast<int64_t>(C::key(model[i])) % 2 == 0) asleep[i] = true;
    }
  }

  void sort() {
    std::vector<uint32_t> order(model.size());
    std::iota(order.begin(), order.end(), 0u);
    std::stable_sort(order.begin(), order.end(),
                     [&](uint32_t a, uint32_t b) { return C::key(model[a]) > C::key(model[b]); });
    const std::vector<T> before = model;
    const std::vector<bool> slept = asleep;
    for (size_t i = 0; i < order.size(); ++i) {
      model[i] = before[order[i]];
      asleep[i] = slept[order[i]];
    }
    if (!inSlots() && model != before) wakeAll();
    list().sortDescending(C::member);
  }

  void expectAwake() {
    std::vector<uint32_t> expected;
    for (uint32_t i = 0; i < model.size(); ++i) {
      if (!asleep[i]) expected.push_back(i);
    }
    EXPECT_EQ(list().awake(), expected);
  }

  /// One random change, done to the list and to the plain vector.
  void change() {
    const uint32_t dice = below(1000);
    const size_t at = model.empty() ? 0 : below(model.size());
    if (dice == 0) {
      list().clear();
      model.clear();
      wakeAll();
    } else if (dice == 1) {
      model.assign(below(600), fresh());
      list().assign(model);
      wakeAll();
    } else if (dice < 50) {
      add(!growsAtHead());
    } else if (dice < 550 || model.empty()) {
      add(growsAtHead());
    } else if (dice < 850) {
      model[at] = next();
      asleep[at] = false;
      list().update(at, [&](T& record) { record = model[at]; });
    } else if (dice < 880) {
      model.erase(model.begin() + static_cast<std::ptrdiff_t>(at));
      list().erase(at);
      wakeAll();
    } else if (dice < 890) {
      const auto goes = [gone = below(50)](const T& record) { return static_cast<uint32_t>(C::key(record)) == gone; };
      const size_t gone = std::erase_if(model, goes);
      EXPECT_EQ(list().eraseIf(goes), gone);
      if (gone > 0) wakeAll();
    } else if (dice < 910) {
      letSleep();
    } else {
      sort();
    }
  }

  bool inSlots() { return list().layout().order == ListLayout::Order::slots; }

  void expectFinds(int64_t T::*key, int64_t id, std::span<const uint32_t> indexed) {
    std::vector<uint32_t> filtered;
    for (uint32_t i = 0; i < model.size(); ++i) {
      if (model[i].*key == id) filtered.push_back(i);
    }
    EXPECT_EQ(std::vector(indexed.begin(), indexed.end()), filtered);
  }

  void expectIndexesAgree() {
    for (int64_t id = 0; id < 50; ++id) {
      if constexpr (historyKeyOf<T> != nullptr) expectFinds(historyKeyOf<T>, id, list().historyOf(id));
      if constexpr (groupKeyOf<T> != nullptr) expectFinds(groupKeyOf<T>, id, list().groupOf(id));
    }
  }

  GameState state;
  MemoryStore store;
  SaveFile saveFile{store};
  std::vector<T> model;
  std::vector<bool> asleep;  // of each record of the model
  std::mt19937_64 random{7};
  int64_t counter = 100;
};

using Cases = testing::Types<Case<&GameState::saveAllSongList, &Song::totalListen>,
                             Case<&GameState::saveAllSongList, &Song::viralityScore>,
                             Case<&GameState::saveAllSongList, &Song::albumId>,
                             Case<&GameState::saveAllBillboardSongList, &BillboardSong::songId>,
                             Case<&GameState::saveAllAlbumList, &Album::albumId>,
                             Case<&GameState::saveAllWeeklySongListens, &WeeklySongListens::songId>,
                             Case<&GameState::saveAllChirpList, &Chirp::likeCount>>;
TYPED_TEST_SUITE(RecordListTest, Cases);

TYPED_TEST(RecordListTest, AgreesWithAPlainVectorAndItsStoreWithAWholeSave) {
  for (int step = 0; step < 2000; ++step) {
    this->change();
    ASSERT_EQ(std::vector(this->list().begin(), this->list().end()), this->model) << "step " << step;
    this->expectAwake();
    if (this->below(6) != 0) continue;
    this->save();
    ASSERT_EQ(differencesFromStore(this->state, this->store), std::vector<std::string>()) << "step " << step;
    // Slots that a fresh save would hand out anew are compared through the loading above.
    if (this->list().layout().order != ListLayout::Order::slots) {
      ASSERT_EQ(this->store.rows, this->rowsOfWholeList()) << "step " << step;
    }
    if (this->below(10) != 0) continue;
    this->expectIndexesAgree();
    GameState loaded;
    EXPECT_TRUE(this->saveFile.load(loaded).damaged.empty());
    this->state = std::move(loaded);
    this->wakeAll();
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
    EXPECT_EQ(rowsWritten([](auto& list) { list.sortDescending(TypeParam::member); }), 1);
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
  songs.sortDescending(&Song::viralityScore);
  std::vector<int64_t> ids;
  for (const Song& song : songs) ids.push_back(song.songId);
  EXPECT_EQ(ids, (std::vector<int64_t>{1, 4, 0, 2}));
  songs.append({.songId = 9, .viralityScore = std::numeric_limits<double>::quiet_NaN()});
  songs.sortDescending(&Song::viralityScore);
  EXPECT_EQ(songs.size(), 5u);
}

TEST(RunningTally, CountsEachRowOnceAndAnewWhatWasRewritten) {
  RecordList<WeeklySongListens> weeks(growing);
  RunningTally<int64_t> tally;
  int64_t looks = 0;
  const auto total = [&] {
    return tally.over(weeks, [&](int64_t& sum, const WeeklySongListens& week) {
      sum += week.songListens;
      ++looks;
    });
  };
  for (const int64_t listens : {5, 7, 30}) weeks.append({.songListens = listens});
  EXPECT_EQ(total(), 42);
  weeks.append({.songListens = 8});
  EXPECT_EQ(total(), 50);
  EXPECT_EQ(looks, 4) << "only the new row was looked at";
  weeks.update(0, [](WeeklySongListens& week) { week.songListens = 1; });
  EXPECT_EQ(total(), 46);
  weeks.erase(1);
  weeks.append({.songListens = 2});
  EXPECT_EQ(total(), 41);
  weeks.assign({{.songListens = 3}});
  EXPECT_EQ(total(), 3);
}

}  // namespace
}  // namespace backbeat
