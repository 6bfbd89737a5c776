// Golden careers end the same everywhere. When the rules or the screens changed on purpose, write the summaries anew
// and look at what changed before you commit it:
//   BACKBEAT_REGOLD=1 backbeat_tests --gtest_filter='Golden*'
#include "play/golden_careers.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <map>
#include <numeric>
#include <sstream>

#include "core/memory_store.h"
#include "play/state_summary.h"
#include "shell/native/console_player.h"
#include "support/program.h"

namespace backbeat {
namespace {

std::string summaryFile(std::string_view name) {
  return BACKBEAT_SOURCE_DIR "/tests/play/" + std::string(name) + ".txt";
}

TEST(GoldenCareers, EndAsTheirSummariesSay) {
  for (const GoldenCareer& golden : goldenCareers()) {
    const PlayedCareer& career = goldenCareer(golden.name);
    EXPECT_EQ(career.problems, std::vector<std::string>()) << golden.name;
    const std::string summary = summaryOf(career.end);
    if (std::getenv("BACKBEAT_REGOLD")) writeFile(summaryFile(golden.name), summary);
    const std::string difference = differenceOf(contentOf(summaryFile(golden.name)), summary);
    EXPECT_TRUE(difference.empty()) << golden.name << " ends otherwise than " << summaryFile(golden.name) << "\n"
                                    << difference;
  }
}

TEST(GoldenCareers, EndTheSameFromTheirTraces) {
  for (const GoldenCareer& golden : goldenCareers()) {
    const PlayedCareer& career = goldenCareer(golden.name);
    MemoryStore store;
    store.rows = career.beginning;
    QuietPlatform platform;
    TraceRecorder again(store, platform);
    for (const TraceEvent& event : career.events) again.play(event);
    EXPECT_EQ(again.session().game().state, career.end) << golden.name;
    EXPECT_EQ(differencesFromStore(career.end, store), std::vector<std::string>()) << golden.name;
  }
}

TEST(GoldenYear, EndsTheSameWhenTypedIntoTheConsole) {
  const PlayedCareer& golden = goldenCareer("golden_year");
  std::istringstream typed(typedFor(golden));
  std::ostringstream printed;
  MemoryStore store;
  FreeShop shop;
  TraceRecorder career(store, shop);
  career.play(golden.events.at(0));
  size_t next = 1;
  const auto clock = [&] { return golden.events[std::min(next++, golden.events.size() - 1)].unixMilliseconds; };
  ConsolePlayer(career, store, shop, linesFrom(typed), printed, false, clock).run();
  EXPECT_EQ(differenceOf(summaryOf(golden.end), summaryOf(career.session().game().state)), "");
  EXPECT_EQ(printed.str().find('\x1b'), std::string::npos) << "no colours over a pipe";
}

TEST(GoldenYear, EndsTheSameInTheRealProgram) {
  const PlayedCareer& golden = goldenCareer("golden_year");
  const std::string trace = freshFile("golden_year.trace");
  writeFile(trace, golden.trace);
  const ProgramRun run = runProgram({"replay", trace});
  EXPECT_EQ(run.exitCode, 0);
  EXPECT_EQ(run.output, hashText(stateHash(golden.end)) + "\n");
}

TEST(GoldenDecade, HoldsACareerWithAlbumsALabelAndAllThatIsBesideRecords) {
  const PlayedCareer& career = goldenCareer("golden_decade");
  EXPECT_EQ(career.end.yearNumber, 2033);
  EXPECT_GT(career.end.totalFans, 35'000);
  EXPECT_TRUE(std::any_of(career.end.saveAllAlbumList.begin(), career.end.saveAllAlbumList.end(),
                          [](const Album& album) { return album.isReleased && album.albumsSold > 0; }));
  EXPECT_TRUE(std::any_of(career.events.begin(), career.events.end(),
                          [](const TraceEvent& event) { return event.action.id == "signContract"; }));
  const auto total = [](const auto& list, auto amountOf) {
    return std::accumulate(list.begin(), list.end(), 0.0,
                           [&](double sum, const auto& each) { return sum + static_cast<double>(amountOf(each)); });
  };
  EXPECT_GT(total(career.end.saveAllMusicVideoList, [](const MusicVideo& video) { return video.totalViews; }), 1'000);
  EXPECT_GT(total(career.end.saveAllWeeklyTourSales, [](const WeeklyTourSales& show) { return show.seatsSold; }),
            1'000);
  EXPECT_GT(total(career.end.saveAllMerchReleasedList, [](const Merch& made) { return made.totalUnitsSold; }), 1'000);
  EXPECT_GT(total(career.end.saveAllFeaturedOnList, [](const FeaturedOn& verse) { return verse.totalListen; }), 1'000);
  EXPECT_GT(total(career.end.saveAllFestivalList, [](const Festival& festival) { return festival.reviewStars; }), 0);
}

TEST(GoldenDynasty, HandsAFamilyOnTwice) {
  const GameState& end = goldenCareer("golden_dynasty").end;
  ASSERT_EQ(end.saveAllLegacyList.size(), 2u);
  EXPECT_TRUE(end.saveAllLegacyList[0].parentsNames.empty());
  EXPECT_EQ(end.saveAllLegacyList[1].parentsNames.size(), 2u);
  EXPECT_EQ(end.myArtistsName, "Juno");
  EXPECT_EQ(end.childAbandonmentEnergyLoss, 0) << "that was the first one's grief";
  const std::vector<int64_t>& completed = end.AllCompletedAchievements;
  EXPECT_EQ(std::count(completed.begin(), completed.end(), 307), 1);
}

TEST(GoldenLabel, HoldsALabelWithAllThatItsHeadDecides) {
  const GameState& end = goldenCareer("golden_label").end;
  const RecordList<SignedArtist>& artists = end.saveAllSignedArtistList;
  const auto anArtist = [&](auto isSo) { return std::any_of(artists.begin(), artists.end(), isSo); };
  EXPECT_GE(end.saveAllEmployeeList.size(), 8u);
  EXPECT_TRUE(anArtist([](const SignedArtist& artist) { return artist.name == "Paper Anna"; }));
  EXPECT_TRUE(anArtist([](const SignedArtist& artist) { return !artist.underContract; }));
  EXPECT_TRUE(anArtist([](const SignedArtist& artist) {
    return artist.totalLifetimeCost >= 2 * static_cast<double>(artist.signingBonus);
  })) << "nobody's contract was renewed";
  EXPECT_GT(end.saveAllSignedArtistAlbumList.size(), 20u);
  EXPECT_GT(end.saveAllSignedArtistWeeklySongListens.size(), 5'000u);
  EXPECT_TRUE(std::any_of(end.saveAllBillboardSongList.begin(), end.saveAllBillboardSongList.end(),
                          [](const BillboardSong& row) { return row.songId > 1'000'000 && row.songId < 10'000'000; }));
  const auto nominated = [&](bool own, int64_t least) {
    return std::any_of(end.saveAllMusicAwards.begin(), end.saveAllMusicAwards.end(), [&](const Award& award) {
      return (award.artistName == end.myArtistsName) == own && award.isWinner >= least;
    });
  };
  EXPECT_TRUE(nominated(false, 0) && nominated(false, 1));
}

/// What became of a chart row from one week to the next.
struct ChartLife {
  bool climbed = false;
  bool left = false;
  bool cameBack = false;
};

TEST(GoldenHits, EnterTheChartClimbLeaveAndComeBack) {
  const PlayedCareer& golden = goldenCareer("golden_hits");
  MemoryStore store;
  store.rows = golden.beginning;
  QuietPlatform platform;
  TraceRecorder career(store, platform);
  std::map<int64_t, ChartLife> lives;
  std::map<int64_t, BillboardSong> before;
  for (const TraceEvent& event : golden.events) {
    career.play(event);
    for (const BillboardSong& row : career.session().game().state.saveAllBillboardSongList) {
      const auto [known, isNew] = before.try_emplace(row.songId, row);
      if (isNew || known->second == row) continue;
      ChartLife& life = lives[row.songId];
      const bool charted = row.weeksOnChart > known->second.weeksOnChart;
      life.climbed = life.climbed || (charted && row.rankThisWeek < known->second.rankThisWeek);
      life.cameBack = life.cameBack || (charted && life.left);
      life.left = life.left || row.rankThisWeek == row.songId + 1000;
      known->second = row;
    }
  }
  EXPECT_TRUE(std::any_of(lives.begin(), lives.end(), [](const auto& life) { return life.second.climbed; }));
  EXPECT_TRUE(std::any_of(lives.begin(), lives.end(), [](const auto& life) { return life.second.cameBack; }));
  EXPECT_GT(lives.size(), 2u);
}

}  // namespace
}  // namespace backbeat
