#include "wealth/rich_list.h"

#include <gmock/gmock.h>

#include "core/money.h"
#include "core/short_money.h"
#include "core/view_find.h"
#include "support/world.h"
#include "wealth/builders.h"
#include "wealth/career_records.h"
#include "wealth/news.h"
#include "wealth/screens/forbes_detail_view_controller.h"

namespace backbeat {
namespace {

TEST(RichList, LargeSumsAreCutAndNeverRoundedUp) {
  EXPECT_EQ(abbreviatedDollars(999.99), "$999");
  EXPECT_EQ(abbreviatedDollars(1'999), "$1.9K");
  EXPECT_EQ(abbreviatedDollars(10'999), "$10K");
  EXPECT_EQ(abbreviatedDollars(999'999), "$999K");
  EXPECT_EQ(abbreviatedDollars(1'999'999), "$1.9M");
  EXPECT_EQ(abbreviatedDollars(12'345'678'901), "$12.3B");
  EXPECT_EQ(abbreviatedDollars(1.29e12), "$1.2T");
  EXPECT_EQ(abbreviatedDollars(-12'345'678), "-$12,345,678");
}

TEST(RichList, RanksCountDownToTheGreatestFortune) {
  EXPECT_EQ(worldRank(-5), "Unranked");
  EXPECT_EQ(worldRank(1'509'999'999), "Unranked");
  EXPECT_EQ(worldRank(1'510'000'000), "#99");
  EXPECT_EQ(worldRank(75'500'000'000), "#50");
  EXPECT_EQ(worldRank(151'000'000'000), "#0") << "kept";
  EXPECT_EQ(worldRank(151'000'000'001), "#1");
}

TEST(RichList, AVisitTellsTheChangeSinceTheLastOne) {
  World world;
  world.state.totalCashAvailable = 5'000;
  world.state.netWorthSinceLastChecked = 7'500;
  world.settle();
  ForbesDetailViewController screen(world.game);
  screen.open();
  EXPECT_EQ(blockOf<Chart>(screen.view()).value, "$5.0K");
  EXPECT_EQ(blockOf<Chart>(screen.view()).note, "down $2.5K since your last visit");
  screen.open();
  EXPECT_EQ(blockOf<Chart>(screen.view()).note, "unchanged since your last visit");
  world.state.netWorthSinceLastChecked = 0;
  world.settle();
  screen.open();
  EXPECT_EQ(blockOf<Chart>(screen.view()).note, "up $5.0K from nothing");
}

TEST(RichList, TheProfileTellsTradesFamilyAndInheritance) {
  World world;
  GameState& state = world.state;
  EXPECT_EQ(sourceOfWealth(state), "Musician");
  EXPECT_EQ(selfMadeScore(state), 10);
  EXPECT_EQ(maritalStatus(state), "Single");
  state.isLabelLaunched = 1;
  ownHome(state, 5000, 1, 2023);
  state.saveAllVentureInvestments.append({});
  state.ageAtTakeover = 2050;
  for (int i = 0; i < 2; ++i) state.saveAllLegacyList.append({});
  EXPECT_EQ(sourceOfWealth(state), "Musician and Founder, Real Estate, Investor, Inheritance");
  EXPECT_EQ(selfMadeScore(state), 4);
  for (int i = 0; i < 2; ++i) state.saveAllLegacyList.append({});
  EXPECT_EQ(selfMadeScore(state), 1);
  state.charisma = 109;
  EXPECT_EQ(philanthropyScore(state), 5);
  for (const int64_t standing : {-1, 3}) {
    Matches match;
    match.relationshipState = standing;
    state.saveAllMatchesList.append(match);
  }
  Child abandoned;
  abandoned.typeOfRelationship = -1;
  state.saveAllChildList.append(abandoned);
  EXPECT_EQ(maritalStatus(state), "Married");
  abandoned.typeOfRelationship = 1;
  state.saveAllChildList.append(abandoned);
  EXPECT_EQ(maritalStatus(state), "Married with Kids");
}

TEST(RichList, RecordsLookAtWholeToursAndAtTheArtistsOwnSongs) {
  World world;
  GameState& state = world.state;
  for (const auto& [tour, gross] : {std::pair(1, 50'000), std::pair(2, 30'000), std::pair(2, 30'000)}) {
    MusicTour venue;
    venue.tourId = tour;
    venue.tourTitle = "Tour " + std::to_string(tour);
    venue.grossRevenue = gross;
    state.saveAllMusicTourList.append(venue);
  }
  for (const auto& [songId, weeks] : {std::pair(12, 9), std::pair(1'000'003, 40), std::pair(10'000'004, 11)}) {
    BillboardSong row;
    row.songId = songId;
    row.songTitle = "Song " + std::to_string(songId);
    row.weeksOnChart = weeks;
    row.weeksAtOne = songId == 12 ? 2 : 0;
    state.saveAllBillboardSongList.append(row);
  }
  for (const int64_t minutes : {0, 55, 38}) {
    Merch product;
    product.minutesToSellOut = minutes;
    state.saveAllMerchReleasedList.append(product);
  }
  const std::vector<RecordLine> lines = careerRecords(state);
  ASSERT_EQ(lines.size(), 16u);
  const auto told = [&](size_t i) { return lines[i].value + " | " + lines[i].note; };
  EXPECT_EQ(told(0), "- | ");
  EXPECT_EQ(told(2), "Tour 2 | $60K");
  EXPECT_EQ(told(4), "2 | 1 #1s");
  EXPECT_EQ(told(5), "Song 12 | 2 weeks");
  EXPECT_EQ(told(6), "Song 10000004 | 11 weeks");
  EXPECT_EQ(told(8), "38 minutes | ");
}

TEST(RichList, AFortuneIsNewsWhereTheWeeksCashCarriesItPastAPowerOfTen) {
  World world;
  ownVehicle(world.state, 7001, world.state.yearNumber);
  const auto headline = [&](double before, double now) {
    world.game.turn.before.cash = before;
    world.state.totalCashAvailable = now;
    std::vector<News> news;
    addWealthNews(world.game, news);
    return news.empty() ? std::string() : news[0].headline;
  };
  EXPECT_EQ(headline(-80, 999'400), "");
  EXPECT_EQ(headline(999'400, 999'600), "You are worth $1.0M");
  EXPECT_EQ(headline(2'000'000, 1'000'000'000), "You are worth $1.0B");
  EXPECT_EQ(headline(20'000'000, 3'000'000), "");
}

}  // namespace
}  // namespace backbeat
