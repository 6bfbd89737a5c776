#include "shell/native/sqlite_store.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sqlite3.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cmath>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <limits>
#include <sstream>

#include "core/save_file.h"
#include "shell/session.h"
#include "support/program.h"
#include "support/small_career.h"

namespace backbeat {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class SqliteStoreTest : public testing::Test {
 protected:
  SqliteStoreTest() {
    char name[] = "/tmp/backbeat-save-XXXXXX";
    folder = mkdtemp(name);
    path = folder / "some" / "where" / "career.save";
  }
  ~SqliteStoreTest() override { std::filesystem::remove_all(folder); }

  std::unique_ptr<SqliteStore> open() const {
    auto opened = SqliteStore::open(path);
    EXPECT_EQ(opened.problem, "");
    return std::move(opened.store);
  }
  std::string problem() const {
    const auto opened = SqliteStore::open(path);
    EXPECT_EQ(opened.store, nullptr);
    return opened.problem;
  }
  Bytes bytes() const {
    std::ifstream file(path, std::ios::binary);
    std::ostringstream content;
    content << file.rdbuf();
    return content.str();
  }
  void write(const Bytes& content) const {
    std::filesystem::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << content;
  }
  /// Runs SQL on the file as another program might, and gives the number it answers with.
  int64_t tamper(const char* sql) const {
    sqlite3* database = nullptr;
    int64_t answer = 0;
    const auto take = [](void* out, int, char** columns, char**) {
      *static_cast<int64_t*>(out) = std::atoll(columns[0]);
      return 0;
    };
    EXPECT_EQ(sqlite3_open(path.c_str(), &database), SQLITE_OK);
    EXPECT_EQ(sqlite3_exec(database, sql, take, &answer, nullptr), SQLITE_OK) << sqlite3_errmsg(database);
    sqlite3_close(database);
    return answer;
  }
  /// Runs `body` in a process of its own and gives its exit code, or -1 when it was killed.
  template <class Body>
  static int inChild(Body&& body) {
    const pid_t child = fork();
    if (child == 0) _exit(body());
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }

  std::filesystem::path folder;
  std::filesystem::path path;
};

GameState career() {
  GameState state;
  state.totalFans = 98'765'432'109;
  state.totalCashAvailable = -0.0;
  state.realEstateIndex = 3.0;
  state.myArtistsName = "Zoë 🎤";
  for (int64_t id = 5; id < 400; ++id) {
    state.saveAllSongList.append({.songId = id, .viralityScore = static_cast<double>(id % 50)});
    state.saveAllWeeklySongListens.append({.songId = id});
  }
  state.saveAllSongList.sortDescending(&Song::viralityScore);
  return state;
}

bool saveAll(Store& store, GameState& state) {
  SaveFile saveFile(store);
  for (const auto& [key, list] : listsOf(state)) saveFile.writeList(key, list);
  for (const Scalar& scalar : scalars) saveFile.writeScalar(state, scalar);
  return saveFile.commit();
}

TEST_F(SqliteStoreTest, KeepsASaveAcrossReopening) {
  GameState state = career();
  ASSERT_TRUE(saveAll(*open(), state));
  const auto store = open();
  EXPECT_THAT(differencesFromStore(state, *store), IsEmpty());
  GameState loaded;
  SaveFile(*store).load(loaded);
  EXPECT_EQ(stateHash(loaded), stateHash(state));
  std::vector<std::pair<std::string, int32_t>> places;
  store->visitRows([&](std::string_view key, int32_t chunk, const Value&) { places.emplace_back(key, chunk); });
  EXPECT_TRUE(std::is_sorted(places.begin(), places.end()));
  store->rest();
  EXPECT_EQ(stateHash(loaded), stateHash(state));
}

TEST_F(SqliteStoreTest, WhatIsNoNumberIsPutRightToldAndWritten) {
  GameState state = career();
  state.netWorthSinceLastChecked = std::nan("");
  state.saveAllSongList.update(7, [](Song& song) { song.viralityScore = std::nan(""); });
  ASSERT_TRUE(saveAll(*open(), state));
  GameState loaded;
  const auto store = open();
  SaveFile saveFile(*store);
  EXPECT_THAT(saveFile.load(loaded).mended, ElementsAre("netWorthSinceLastChecked", "saveAllSongList"));
  EXPECT_EQ(loaded.netWorthSinceLastChecked, 0);
  EXPECT_EQ(loaded.saveAllSongList[7].viralityScore, 0);
  EXPECT_TRUE(saveFile.commit());
  EXPECT_THAT(SaveFile(*store).load(loaded).mended, IsEmpty());
  EXPECT_EQ(loaded.saveAllSongList.size(), state.saveAllSongList.size());
}

TEST_F(SqliteStoreTest, AnUnreadableSaveIsSetAsideAsItStands) {
  GameState state = career();
  ASSERT_TRUE(saveAll(*open(), state));
  const Bytes before = bytes();
  auto store = open();
  const std::string place = store->setAside();
  EXPECT_EQ(place, path.string() + ".unreadable");
  GameState empty;
  EXPECT_TRUE(SaveFile(*store).load(empty).readable);
  EXPECT_EQ(empty.totalFans, GameState().totalFans);
  EXPECT_TRUE(saveAll(*store, state)) << "the store goes on with the fresh file";
  EXPECT_EQ(store->setAside(), place + "-2");
  path = place;
  EXPECT_EQ(bytes(), before);
}

TEST_F(SqliteStoreTest, ADamagedListIsPutAsideForGood) {
  GameState state = career();
  ASSERT_TRUE(saveAll(*open(), state));
  tamper("UPDATE list SET blob = x'626164' WHERE key = 'saveAllSongList' AND chunk = 3");
  GameState loaded;
  EXPECT_THAT(SaveFile(*open()).load(loaded).damaged, ElementsAre("saveAllSongList"));
  EXPECT_EQ(loaded.saveAllWeeklySongListens, state.saveAllWeeklySongListens);
  EXPECT_THAT(SaveFile(*open()).load(loaded).damaged, IsEmpty());
  EXPECT_EQ(tamper("SELECT count(*) FROM quarantine"), 51) << "50 rows of songs and their order";
}

TEST_F(SqliteStoreTest, WhatIsNotAsItWasWrittenOrIsGoneIsToldOnce) {
  GameState state = career();
  const auto found = [&](const char* damage) {
    std::filesystem::remove(path);
    EXPECT_TRUE(saveAll(*open(), state));
    tamper(damage);
    GameState loaded;
    const auto store = open();
    SaveFile saveFile(*store);
    const LoadReport report = saveFile.load(loaded);
    saveFile.commit();
    const LoadReport again = SaveFile(*store).load(loaded);
    EXPECT_THAT(again.damaged, IsEmpty());
    EXPECT_EQ(again.lost, 0);
    std::vector<std::string> told = report.damaged;
    if (report.lost > 0) told.push_back(std::to_string(report.lost) + " lost");
    return told;
  };
  EXPECT_THAT(found("UPDATE kv SET value = 5 WHERE key = 'totalFans'"), ElementsAre("totalFans"));
  EXPECT_THAT(found("UPDATE kv SET fingerprint = NULL WHERE key = 'totalFans'"), ElementsAre("totalFans"));
  EXPECT_THAT(found("UPDATE kv SET key = 'totalFann' WHERE key = 'totalFans'"), ElementsAre("totalFann"));
  EXPECT_THAT(found("UPDATE kv SET value = 3 WHERE key = '#rows'"), ElementsAre("#rows"));
  EXPECT_THAT(found("DELETE FROM kv WHERE key = 'totalFans' OR key = 'weekNumber'"), ElementsAre("2 lost"));
  EXPECT_THAT(found("DELETE FROM list WHERE key = 'saveAllWeeklySongListens' AND chunk = 3"), ElementsAre("1 lost"));
  EXPECT_THAT(found("UPDATE list SET blob = (SELECT blob FROM list WHERE key = 'saveAllSongList' AND chunk = 2)"
                    " WHERE key = 'saveAllSongList' AND chunk = 3"),
              ElementsAre("saveAllSongList"));
}

TEST_F(SqliteStoreTest, ALaunchThatDidNotComeToItsEndIsKnown) {
  EXPECT_FALSE(open()->launchStopped());
  open()->beginLaunch();
  EXPECT_TRUE(open()->launchStopped());
  EXPECT_EQ(runProgram({"play", "--save", path}, "quit\n").exitCode, 0) << "it is tried on the side, and all is well";
  EXPECT_FALSE(open()->launchStopped());
}

TEST_F(SqliteStoreTest, ASecondGameIsToldAndChangesNothing) {
  const auto first = open();
  GameState state = career();
  ASSERT_TRUE(saveAll(*first, state));
  first->rest();
  const Bytes before = bytes();
  EXPECT_THAT(problem(), HasSubstr("open in another running game"));
  EXPECT_EQ(inChild([&] { return SqliteStore::open(path).problem.find("another running game") == std::string::npos; }),
            0);
  EXPECT_EQ(bytes(), before);
  state.totalFans = 5;
  EXPECT_TRUE(saveAll(*first, state)) << "the first plays on";
}

TEST_F(SqliteStoreTest, RefusesWhatIsNoSaveAndLeavesItAlone) {
  GameState state = career();
  ASSERT_TRUE(saveAll(*open(), state));
  const Bytes whole = bytes();
  const auto refusedWith = [&](const Bytes& content, const char* expected) {
    write(content);
    EXPECT_THAT(problem(), HasSubstr(expected));
    EXPECT_EQ(bytes(), content);
  };
  refusedWith("Dear diary, today I wrote a song. It has been a long way, but now the first verse stands, and more.",
              "not a save of this game");
  refusedWith(whole.substr(0, 5000), "damaged");
  Bytes damagedSchema = whole;
  damagedSchema.replace(100, 40, 40, '\xFF');
  refusedWith(damagedSchema, "damaged");
  std::filesystem::remove(path);
  tamper("CREATE TABLE recipes (name); PRAGMA user_version = 1");
  refusedWith(bytes(), "not a save of this game");
  std::filesystem::remove(path);
  open();
  tamper("PRAGMA user_version = 99; PRAGMA journal_mode = DELETE");
  const Bytes newer = bytes();
  EXPECT_THAT(problem(), HasSubstr("newer version"));
  EXPECT_EQ(bytes(), newer);
}

TEST_F(SqliteStoreTest, ADamageFurtherInIsNeverTakenForAShorterCareer) {
  GameState state = career();
  ASSERT_TRUE(saveAll(*open(), state));
  const Bytes whole = bytes();
  size_t noticed = 0;
  for (size_t page = 1; page < whole.size() / 4096; ++page) {
    Bytes damaged = whole;
    damaged.replace(page * 4096, 4096, 4096, '\x5A');
    write(damaged);
    const auto opened = SqliteStore::open(path);
    ++noticed;
    if (!opened.store) continue;
    GameState loaded;
    const LoadReport report = SaveFile(*opened.store).load(loaded);
    if (!report.readable || !report.damaged.empty() || report.lost > 0) continue;
    --noticed;
    EXPECT_EQ(stateHash(loaded), stateHash(state)) << "page " << page;
  }
  EXPECT_GT(noticed, whole.size() / 4096 / 2);
}

TEST_F(SqliteStoreTest, ACutOrFlippedFileIsRefusedOrPlayedAndThePlayerIsTold) {
  GameState state = smallCareer();
  ASSERT_TRUE(saveAll(*open(), state));
  const Bytes whole = bytes();
  SeededRandom random(5);
  int refused = 0;
  int told = 0;
  for (int round = 0; round < 200; ++round) {
    Bytes damaged = whole;
    const auto place = [&] { return static_cast<size_t>(random.integer(0, static_cast<int64_t>(damaged.size()) - 1)); };
    if (round % 4 == 0) damaged.resize(place() + 1);
    for (int flips = round % 4 * 4; flips > 0; --flips)
      damaged[place()] ^= static_cast<char>(1 << random.integer(0, 7));
    write(damaged);
    const auto opened = SqliteStore::open(path);
    refused += !opened.store;
    EXPECT_NE(opened.store == nullptr, opened.problem.empty());
    if (!opened.store) continue;
    QuietPlatform platform;
    Session session(*opened.store, platform, 7, {});
    for (const char* tab : {"0", "1", "2", "3", "4"}) session.press({}, "tabs", {"tab", tab});
    const LoadReport& report = session.loadReport();
    EXPECT_EQ(session.shown().notice.empty(), report.readable && report.damaged.empty() && report.lost == 0);
    told += !session.shown().notice.empty();
  }
  EXPECT_GT(refused, 10);
  EXPECT_GT(told, 10);
}

TEST_F(SqliteStoreTest, SaysSoWhenItMayNotWrite) {
  write("");
  std::filesystem::permissions(folder, std::filesystem::perms(0755));
  std::filesystem::permissions(path, std::filesystem::perms(0444));
  std::filesystem::permissions(path.parent_path(), std::filesystem::perms(0555));
  const auto refused = [](const std::string& at, const char* expected) {
    return inChild([&] {
      if (geteuid() == 0 && setuid(65534) != 0) return 2;  // the superuser may write anywhere
      const std::string text = SqliteStore::open(at).problem;
      return text.find(expected) == std::string::npos ? 1 : 0;
    });
  };
  EXPECT_EQ(refused(path, "cannot be opened for reading and writing"), 0) << "a file that is read-only";
  EXPECT_EQ(refused(path.parent_path() / "new.save", "cannot be opened"), 0) << "a folder that is read-only";
  EXPECT_EQ(refused(path.parent_path() / "deeper" / "new.save", "cannot be made"), 0);
  std::filesystem::permissions(path.parent_path(), std::filesystem::perms(0755));
}

TEST_F(SqliteStoreTest, AFullDiskRefusesAndTheGamePlaysOnWhenThereIsRoomAgain) {
  const int outcome = inChild([&] {
    signal(SIGXFSZ, SIG_IGN);
    const auto store = open();
    SaveFile saveFile(*store);
    GameState state = career();
    if (!saveAll(*store, state)) return 1;
    GameState loaded;
    saveFile.load(loaded);
    for (int64_t id = 400; id < 9000; ++id) state.saveAllWeeklySongListens.append({.songId = id});
    saveFile.writeList("saveAllWeeklySongListens", state.saveAllWeeklySongListens);
    const rlimit roomy{RLIM_INFINITY, RLIM_INFINITY};
    for (rlim_t room = 50'000; room < 5'000'000; room += 50'000) {
      const rlimit full{room, RLIM_INFINITY};
      setrlimit(RLIMIT_FSIZE, &full);
      const bool saved = saveFile.commit();
      setrlimit(RLIMIT_FSIZE, &roomy);
      if (saved) return room > 300'000 && differencesFromStore(state, *store).empty() ? 0 : 2;
      if (!saveFile.failing()) return 3;
      if (differencesFromStore(state, *store) != std::vector<std::string>{"saveAllWeeklySongListens"}) return 4;
    }
    return 5;
  });
  EXPECT_EQ(outcome, 0);
}

}  // namespace
}  // namespace backbeat
