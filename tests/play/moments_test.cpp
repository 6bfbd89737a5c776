// What whole careers are told of themselves: each first time once in a life, and none for what a career brought along.
// The moments of the golden careers stand in golden_*_moments.txt:
//   BACKBEAT_REGOLD=1 backbeat_tests --gtest_filter='Moments*'
#include <gtest/gtest.h>

#include <cstdlib>
#include <set>

#include "core/career_file.h"
#include "core/memory_store.h"
#include "core/news.h"
#include "play/golden_careers.h"
#include "play/state_summary.h"
#include "shell/simulate/habits.h"
#include "support/program.h"

namespace backbeat {
namespace {

constexpr int64_t newYear2023 = 1'672'660'800'000;  // unix milliseconds

struct Moment {
  size_t generation = 0;
  int64_t week = 0;
  News::Kind kind = News::Kind::reached;
  std::string key;
};

const char* kindName(News::Kind kind) {
  switch (kind) {
    case News::Kind::first: return "first";
    case News::Kind::best: return "best";
    case News::Kind::reached: return "reached";
    case News::Kind::ended: return "ended";
  }
  return "";
}

/// Plays the presses of a golden career.
std::vector<Moment> momentsOf(const PlayedCareer& golden) {
  std::vector<Moment> moments;
  MemoryStore store;
  store.rows = golden.beginning;
  QuietPlatform platform;
  TraceRecorder career(store, platform);
  for (const TraceEvent& event : golden.events) {
    const bool endsWeek = event.screenKey == "nav" && event.action.id == "endTheWeekButton";
    career.play(event);
    if (!endsWeek) continue;
    const Game& game = career.session().game();
    for (const News& news : newsOf(game)) {
      moments.push_back({game.state.saveAllLegacyList.size(), game.turn.before.absoluteWeek, news.kind, news.key});
    }
  }
  return moments;
}

std::set<std::string> firsts(const std::vector<Moment>& moments) {
  std::set<std::string> told;
  std::set<std::pair<size_t, std::string>> inLife;
  for (const Moment& moment : moments) {
    if (moment.kind != News::Kind::first) continue;
    EXPECT_TRUE(inLife.emplace(moment.generation, moment.key).second) << moment.key << " again in week " << moment.week;
    told.insert(moment.key);
  }
  return told;
}

TEST(Moments, EachFirstIsToldOnceInACareerAndStandsInItsList) {
  for (const GoldenCareer& golden : goldenCareers()) {
    SCOPED_TRACE(golden.name);
    const std::vector<Moment> moments = momentsOf(goldenCareer(golden.name));
    firsts(moments);
    std::string list;
    for (const Moment& moment : moments) {
      list += "moment " + std::to_string(moment.week) + " " + kindName(moment.kind) + " " + moment.key + "\n";
    }
    const std::string file = BACKBEAT_SOURCE_DIR "/tests/play/" + std::string(golden.name) + "_moments.txt";
    if (std::getenv("BACKBEAT_REGOLD")) writeFile(file, list);
    EXPECT_EQ(differenceOf(contentOf(file), list), "");
  }
}

TEST(Moments, WhatAStarBroughtAlongIsNoFirst) {
  const std::set<std::string> told = firsts(momentsOf(goldenCareer("golden_hits")));
  EXPECT_EQ(told.count("listeners 1000"), 0u);
  EXPECT_EQ(told.count("number one"), 1u) << "while a place that nobody held before is one";
}

/// What a week tells when the player has left the game before ending it.
std::set<std::string> toldAfterReload(Store& store) {
  QuietPlatform platform;
  TraceRecorder career(store, platform);
  career.play(launchEvent(newYear2023, 8));
  career.play(actEvent(newYear2023, "nav", {"endTheWeekButton", ""}));
  EXPECT_GT(career.session().game().turn.before.absoluteWeek, 0) << "no week has ended";
  std::set<std::string> told;
  for (const News& news : newsOf(career.session().game())) told.insert(kindName(news.kind) + (" " + news.key));
  return told;
}

TEST(Moments, WhatWasDoneBeforeAReloadIsStillToldByTheWeek) {
  MemoryStore store;
  std::vector<std::string> problems;
  Player player(store, newYear2023, 1, problems);
  beginCareer(player);
  lookForWork(player, 1'000);
  player.endTheWeek(false);
  makeSong(player, {});
  MemoryStore made;
  made.rows = store.rows;
  releaseSingles(player, {});
  MemoryStore older;  // of a version that did not keep how the career stood
  older.rows = made.rows;
  std::erase_if(older.rows, [](const auto& row) { return row.first.first == "reportNumbers"; });
  const std::set<std::string> toldOfSong = toldAfterReload(made);
  EXPECT_EQ(toldOfSong.count("first song"), 1u);
  EXPECT_EQ(toldOfSong.count("first job"), 0u) << "that was last week's";
  EXPECT_EQ(toldOfSong.count("first release"), 0u);
  EXPECT_EQ(toldAfterReload(older).count("first song"), 0u);
  EXPECT_EQ(toldAfterReload(store).count("first release"), 1u);
  EXPECT_EQ(problems, std::vector<std::string>{});
}

TEST(Moments, WhatAnImportedCareerHasBehindItIsNotToldAgain) {
  const PlayedCareer& decade = goldenCareer("golden_decade");
  ImportedCareer imported = importCareer(exportCareer(decade.end));
  ASSERT_TRUE(imported.state.has_value());
  MemoryStore here;
  here.commit(rowsOf(*imported.state));
  const std::set<std::string> again = toldAfterReload(here);
  for (const std::string& first : firsts(momentsOf(decade))) EXPECT_EQ(again.count("first " + first), 0u) << first;
}

}  // namespace
}  // namespace backbeat
