// A save whose bytes were flipped, cut or moved by a bad disk: whatever is left of it, the player is told or nothing is
// different, and the game plays on. More tries than the check makes:
//   BACKBEAT_DAMAGES=1000 backbeat_tests --gtest_filter='DamagedSave.*'
#include <gtest/gtest.h>

#include <cstdlib>
#include <iostream>

#include "core/memory_store.h"
#include "core/random.h"
#include "play/worlds.h"
#include "shell/native/sqlite_store.h"
#include "shell/page_store.h"
#include "shell/row_bytes.h"
#include "shell/session.h"
#include "support/program.h"
#include "support/weighed.h"

namespace backbeat {
namespace {

constexpr int64_t damagesOfTheCheck = 60;
constexpr Date aDay{1'672'660'800};

int64_t tries() {
  const char* asked = std::getenv("BACKBEAT_DAMAGES");
  return asked ? std::atoll(asked) : damagesOfTheCheck;
}

size_t placeIn(const Bytes& bytes, Random& random) {
  return static_cast<size_t>(random.integer(0, static_cast<int64_t>(bytes.size()) - 1));
}

void flip(Bytes& bytes, Random& random) {
  bytes[placeIn(bytes, random)] ^= static_cast<char>(1 << random.integer(0, 7));
}

uint64_t careerIn(Store& store) {
  GameState state;
  SaveFile(store).load(state);
  return careerHash(state);
}

struct WholeSave {
  WholeSave() {
    const std::string file = freshFile("whole_save");
    {
      const SqliteStore::Opened opened = SqliteStore::open(file);
      settleInto(*opened.store, namedWorld("mid-career"));
      career = careerIn(*opened.store);
    }
    bytes = contentOf(file);
  }
  Bytes bytes;
  uint64_t career;
};

Bytes damaged(Bytes save, Random& random) {
  constexpr size_t sector = 512;
  const size_t place = placeIn(save, random) / sector * sector;
  switch (random.integer(0, 3)) {
    case 0: flip(save, random); break;
    case 1: save.resize(placeIn(save, random)); break;
    case 2: save.replace(place, sector, Bytes(sector, '\0')); break;
    default: save.replace(place, sector, Bytes(save, placeIn(save, random) / sector * sector, sector));
  }
  return save;
}

/// Launches on what is left. False when something is different and nobody was told, or no week can be ended.
bool isToldOrHarmless(Store& store, uint64_t whole, bool told = false) {
  QuietPlatform platform;
  Session session(store, platform, 7, aDay);
  const bool same = careerHash(session.game().state) == whole;
  told = told || !session.shown().notice.empty();
  session.press(aDay, "nav", {"endTheWeekButton", ""});
  return (same || told) && !session.shown().screen.empty();
}

TEST(DamagedSave, IsToldOrHarmlessOnAComputer) {
  const WholeSave whole;
  SeededRandom random(2023);
  for (int64_t number = 0; number < tries(); ++number) {
    const std::string file = freshFile("damaged_save");
    writeFile(file, damaged(whole.bytes, random));
    const auto opens = [&] {
      const SqliteStore::Opened opened = SqliteStore::open(file);
      return opened.store ? isToldOrHarmless(*opened.store, whole.career) : !opened.problem.empty();
    };
    EXPECT_TRUE(weighed(opens).ended) << "try " << number;
  }
  std::cout << tries() << " damaged saves of " << whole.bytes.size() << " bytes\n";
}

std::vector<Bytes> wholeRows() {
  MemoryStore store;
  settleInto(store, namedWorld("mid-career"));
  std::vector<Bytes> rows;
  store.visitRows([&](std::string_view key, int32_t chunk, const Value& value) {
    appendRow(rows.emplace_back(), {std::string(key), chunk, value});
  });
  return rows;
}

/// Damages one row, or takes it away.
void damage(std::vector<Bytes>& rows, Random& random) {
  const auto number = random.integer(0, static_cast<int64_t>(rows.size()) - 1);
  Bytes& row = rows[static_cast<size_t>(number)];
  switch (random.integer(0, 2)) {
    case 0: flip(row, random); break;
    case 1: row.resize(placeIn(row, random)); break;
    default: rows.erase(rows.begin() + number);
  }
}

TEST(DamagedSave, IsToldOrHarmlessInABrowser) {
  const std::vector<Bytes> whole = wholeRows();
  const auto handTo = [](PageStore& store, const std::vector<Bytes>& rows) {
    bool taken = true;
    for (const Bytes& row : rows) taken = store.addRow(row) && taken;
    return taken;
  };
  PageStore undamaged;
  EXPECT_TRUE(handTo(undamaged, whole));
  const uint64_t career = careerIn(undamaged);
  SeededRandom random(2024);
  for (int64_t number = 0; number < tries(); ++number) {
    std::vector<Bytes> rows = whole;
    damage(rows, random);
    const auto plays = [&] {
      PageStore store;
      const bool told = !handTo(store, rows);  // the page tells of rows that are none
      store.giveChecks();
      return isToldOrHarmless(store, career, told);
    };
    EXPECT_TRUE(weighed(plays).ended) << "try " << number;
  }
  std::cout << tries() << " damaged rows of " << whole.size() << "\n";
}

}  // namespace
}  // namespace backbeat
