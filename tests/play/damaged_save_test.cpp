// A save whose bytes were flipped, cut or moved by a bad disk: whatever is left of it, the game opens and plays on, or
// says in a sentence that it cannot. More tries than the check makes:
//   BACKBEAT_DAMAGES=5000 backbeat_tests --gtest_filter='DamagedSave.*'
#include <gtest/gtest.h>

#include <cstdlib>
#include <iostream>

#include "core/random.h"
#include "play/worlds.h"
#include "shell/native/sqlite_store.h"
#include "shell/session.h"
#include "support/program.h"
#include "support/weighed.h"

namespace backbeat {
namespace {

constexpr int64_t damagesOfTheCheck = 60;
constexpr Date aDay{1'672'660'800};

Bytes wholeSave() {
  const std::string file = freshFile("whole_save");
  {
    const SqliteStore::Opened opened = SqliteStore::open(file);
    for (const NamedWorld& world : namedWorlds()) {
      if (std::string_view(world.name) == "mid-career") settleInto(*opened.store, world);
    }
  }
  return contentOf(file);
}

Bytes damaged(Bytes save, Random& random) {
  const auto place = [&] { return static_cast<size_t>(random.integer(0, static_cast<int64_t>(save.size()) - 1)); };
  constexpr size_t sector = 512;
  switch (random.integer(0, 3)) {
    case 0: save[place()] ^= static_cast<char>(1 << random.integer(0, 7)); break;
    case 1: save.resize(place()); break;
    case 2: save.replace(place() / sector * sector, sector, Bytes(sector, '\0')); break;
    default: save.replace(place() / sector * sector, sector, Bytes(save, place() / sector * sector, sector));
  }
  return save;
}

/// Opens the save and ends a week; true when the game was still there at the end.
bool opensAndPlays(const std::string& file) {
  const SqliteStore::Opened opened = SqliteStore::open(file);
  if (!opened.store) return !opened.problem.empty();
  QuietPlatform platform;
  Session session(*opened.store, platform, 7, aDay);
  session.press(aDay, "nav", {"endTheWeekButton", ""});
  return !session.shown().screen.empty();
}

TEST(DamagedSave, OpensAndPlaysOrSaysThatItCannot) {
  const char* asked = std::getenv("BACKBEAT_DAMAGES");
  const int64_t tries = asked ? std::atoll(asked) : damagesOfTheCheck;
  const Bytes whole = wholeSave();
  const std::string file = freshFile("damaged_save");
  SeededRandom random(2023);
  for (int64_t number = 0; number < tries; ++number) {
    freshFile("damaged_save");
    writeFile(file, damaged(whole, random));
    EXPECT_TRUE(weighed([&] { return opensAndPlays(file); }).ended) << "try " << number;
  }
  std::cout << tries << " damaged saves of " << whole.size() << " bytes\n";
}

}  // namespace
}  // namespace backbeat
