#include "shell/native/sqlite_store.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sqlite3.h>
#include <sys/mman.h>
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
  state.totalFans = std::numeric_limits<int64_t>::min();
  state.totalCashAvailable = -0.0;
  state.realEstateIndex = 3.0;
  state.myArtistsName = "Zoë 🎤";
  for (int64_t id = 5; id < 400; ++id) {
    state.saveAllSongList.append({.songId = id, .viralityScore = static_cast<double>(id % 50)});
    state.saveAllWeeklySongListens.append({.songId = id});
  }
  state.saveAllSongList.sortDescending([](const Song& song) { return song.viralityScore; });
  return state;
}

bool saveAll(Store& store, GameState& state) {
  SaveFile saveFile(store);
  forEachField<GameState>([&](const auto& field) { saveFile.writeList(field.key, state.*field.member); });
  for (const Scalar& scalar : scalars) saveFile.writeScalar(state, scalar);
  return saveFile.commit();
}

TEST_F(SqliteStoreTest, KeepsASaveAcrossReopening) {
  GameState state = career();
  state.netWorthSinceLastChecked = std::nan("");
  ASSERT_TRUE(saveAll(*open(), state));
  const auto store = open();
  EXPECT_THAT(differencesFromStore(state, *store), ElementsAre("netWorthSinceLastChecked")) << "no number equals none";
  GameState loaded;
  SaveFile(*store).load(loaded);
  EXPECT_TRUE(std::isnan(loaded.netWorthSinceLastChecked));
  EXPECT_EQ(stateHash(loaded), stateHash(state));
  std::vector<std::pair<std::string, int32_t>> places;
  store->visitRows([&](std::string_view key, int32_t chunk, const Value&) { places.emplace_back(key, chunk); });
  EXPECT_TRUE(std::is_sorted(places.begin(), places.end()));
  store->rest();
  EXPECT_EQ(stateHash(loaded), stateHash(state));
}

TEST_F(SqliteStoreTest, ADamagedListIsPutAsideForGood) {
  GameState state = career();
  ASSERT_TRUE(saveAll(*open(), state));
  tamper("UPDATE list SET blob = x'626164' WHERE key = 'saveAllSongList' AND chunk = 3");
  GameState loaded;
  EXPECT_THAT(SaveFile(*open()).load(loaded).damagedLists, ElementsAre("saveAllSongList"));
  EXPECT_EQ(loaded.saveAllWeeklySongListens, state.saveAllWeeklySongListens);
  EXPECT_THAT(SaveFile(*open()).load(loaded).damagedLists, IsEmpty());
  EXPECT_EQ(tamper("SELECT count(*) FROM quarantine"), 51) << "50 rows of songs and their order";
}

TEST_F(SqliteStoreTest, AKillLeavesAWholeStep) {
  auto* const acknowledged = static_cast<volatile int64_t*>(
      mmap(nullptr, sizeof(int64_t), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0));
  *acknowledged = 0;
  for (int round = 0; round < 40; ++round) {
    const pid_t child = fork();
    if (child == 0) {
      const auto opened = SqliteStore::open(path);
      if (!opened.store) _exit(1);
      for (int64_t step = *acknowledged + 1;; ++step) {
        std::vector<Write> writes = {{"step", wholeRow, Value(step)}};
        for (int32_t chunk = 0; chunk < 30; ++chunk) {
          writes.push_back({"rows", chunk, Value(Bytes(3000, static_cast<char>(step)))});
        }
        if (!opened.store->commit(writes)) _exit(2);
        *acknowledged = step;
        if (step % 7 == 0) opened.store->rest();
      }
    }
    usleep(static_cast<useconds_t>(3000 + round * 1009 % 20'000));
    kill(child, SIGKILL);
    int status = 0;
    waitpid(child, &status, 0);
    ASSERT_TRUE(WIFSIGNALED(status)) << "the child ended by itself";
    int64_t step = 0;
    open()->visitRows([&](std::string_view key, int32_t, const Value& value) {
      if (key == "step") step = std::get<int64_t>(value);
    });
    open()->visitRows([&](std::string_view key, int32_t chunk, const Value& value) {
      if (key != "rows") return;
      EXPECT_EQ(std::get<Bytes>(value), Bytes(3000, static_cast<char>(step))) << chunk;
    });
    EXPECT_GE(step, *acknowledged) << "an acknowledged step is lost";
    *acknowledged = step;
  }
  EXPECT_GT(*acknowledged, 40);
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
  tamper("PRAGMA user_version = 99");
  EXPECT_THAT(problem(), HasSubstr("newer version"));
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
    if (!report.readable || !report.damagedLists.empty()) continue;
    --noticed;
    EXPECT_EQ(stateHash(loaded), stateHash(state)) << "page " << page;
  }
  EXPECT_GT(noticed, whole.size() / 4096 / 2);
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
    const rlimit full{300'000, RLIM_INFINITY};
    setrlimit(RLIMIT_FSIZE, &full);
    for (int64_t id = 400; id < 9000; ++id) state.saveAllWeeklySongListens.append({.songId = id});
    saveFile.writeList("saveAllWeeklySongListens", state.saveAllWeeklySongListens);
    if (saveFile.commit() || !saveFile.failing()) return 2;
    if (differencesFromStore(state, *store) != std::vector<std::string>{"saveAllWeeklySongListens"}) return 3;
    const rlimit roomy{RLIM_INFINITY, RLIM_INFINITY};
    setrlimit(RLIMIT_FSIZE, &roomy);
    if (!saveFile.commit()) return 4;
    return differencesFromStore(state, *store).empty() ? 0 : 5;
  });
  EXPECT_EQ(outcome, 0);
}

}  // namespace
}  // namespace backbeat
