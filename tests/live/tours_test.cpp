#include "live/tours.h"

#include <gtest/gtest.h>

#include "career/builders.h"
#include "career/energy.h"
#include "career/job_board.h"
#include "core/news.h"
#include "live/builders.h"
#include "live/news.h"
#include "live/tour_dates.h"
#include "live/tour_plan.h"
#include "support/world.h"

namespace backbeat {
namespace {

struct TourWorld : World {
  TourWorld() {
    state.myArtistsName = "Mara Voss";
    state.totalFans = 1'000'000;
    for (int64_t* skill : {&state.rhythm, &state.charisma, &state.vocalRange, &state.songWriting, &state.virality}) {
      *skill = 50;
    }
  }
  void sign(double ticketCost, double cut) {
    ContractLabel contract = contractWith("Still Water", 1, 500);
    contract.tourTicketCost = ticketCost;
    contract.labelPercentageRate = cut;
    signContract(state, contract);
  }
  /// Every town feels the same about the artist but for two.
  TourPlan plan(int64_t prague, int64_t ryman) {
    random.integerIs(0, 10, prague + 5);
    for (int64_t row = 1; row < tourLocationCount - 1; ++row) random.integerIs(0, 10, 5);
    random.integerIs(0, 10, ryman + 5);
    return beginTourPlan(game);
  }
  /// The three counts of one post.
  void expectPost() { random.doubleIs(0.005, 0.02, 0.01).doubleIs(0.05, 0.2, 0.1).doubleIs(0.05, 0.2, 0.2); }
};

MusicTour venueAfterAdding(const TourWorld& world, TourPlan& plan, int64_t id) {
  addTourLocation(world.game, plan, id);
  return plan.potentialMusicTourList.back();
}

TEST(TourPlanning, DemandMakesThePrice) {
  TourWorld world;
  world.state.globalMarketingCampaigns = 11;
  world.settle();
  TourPlan plan = world.plan(-5, 2);
  EXPECT_EQ(plan.tempTourTitle, "Mara Voss | 2023");
  const MusicTour prague = venueAfterAdding(world, plan, 0);  // (11 + 2 * 50) / 3, cut, less 5: a rate of 32
  EXPECT_EQ(prague.seatsSold, 8'000);
  EXPECT_DOUBLE_EQ(prague.ticketPrice, 50 + 125 * 0.032);
  EXPECT_DOUBLE_EQ(demandPercent(world.game, plan, tourLocations[0]), 3.2);
  plan.showsPerVenue = 2;
  const MusicTour ryman = venueAfterAdding(world, plan, 25);  // 13,000 of 2,500 in two shows: full at any price
  EXPECT_EQ(ryman.seatsSold, 13'000);
  EXPECT_DOUBLE_EQ(ryman.ticketPrice, 175);
  EXPECT_DOUBLE_EQ(demandPercent(world.game, plan, tourLocations[25]), 260);
  EXPECT_DOUBLE_EQ(demandPercent(world.game, plan, tourLocations[0]), 3.2);  // as it was added: for one show
  EXPECT_EQ(beginTourPlan(world.game).potentialMusicTourList.size(), 0u);    // demand stays for the launch
  EXPECT_EQ(world.state.tourId, 3);
}

TEST(TourPlanning, TheUnwantedAreToldSo) {
  TourWorld world;
  for (int64_t* skill : {&world.state.rhythm, &world.state.charisma, &world.state.vocalRange, &world.state.songWriting,
                         &world.state.virality}) {
    *skill = 1;
  }
  world.state.totalFans = 100'000;
  world.sign(0, 0);
  TourPlan plan = world.plan(0, -5);
  EXPECT_EQ(venueAfterAdding(world, plan, 24).seatsSold, 25);
  const MusicTour ryman = venueAfterAdding(world, plan, 25);
  EXPECT_EQ(ryman.seatsSold, -100);
  EXPECT_DOUBLE_EQ(ryman.ticketPrice, 45);  // minus 4 per cent of demand
  EXPECT_DOUBLE_EQ(expectedNet(world.state, ryman), -4'500);
}

TEST(TourPlanning, TheSumFollowsWhatIsInIt) {
  TourWorld world;
  world.sign(110, 0.25);
  TourPlan plan = world.plan(0, 0);
  plan.showsPerVenue = 3;
  addTourLocation(world.game, plan, 25);
  plan.showsPerVenue = 1;
  addTourLocation(world.game, plan, 0);
  addTourLocation(world.game, plan, 0);  // it is in already
  TourTotals totals = totalsOf(world.state, plan);
  EXPECT_EQ(totals.numberOfShows, 2);
  EXPECT_EQ(totals.weeksOnTour, 4);
  EXPECT_EQ(totals.totalCapacity, 3 * 2'500 + 250'000);
  EXPECT_EQ(totals.energyCostToTour, 3 * 5 + 10);
  const double prague = 50 + 125 * 0.033;  // a rate of 100 / 3, cut
  EXPECT_DOUBLE_EQ(totals.averageTicketPrice, (175 + prague) / 2);
  EXPECT_NEAR(totals.expectedNet, 0.75 * (3 * 2'500 * (175 - 110.0) + 8'250 * (prague - 110)), 1e-6);
  removeTourLocation(plan, 25);
  removeTourLocation(plan, 0);
  totals = totalsOf(world.state, plan);
  EXPECT_EQ(totals.totalCapacity + totals.energyCostToTour + totals.weeksOnTour, 0);
  EXPECT_EQ(totals.averageTicketPrice, 0);
}

TEST(TourPlanning, NeedsAVenueAndTheEnergy) {
  TourWorld world;
  world.sign(100, 0);
  world.state.weekNumber = 51;
  world.state.weekNumberForTracking = 51;
  world.state.totalEnergyMax = 59;
  world.state.weeklyEnergyCost = 20;
  world.state.merchEnergyCost = 10;
  world.settle();
  TourPlan plan = world.plan(0, 0);
  EXPECT_EQ(startTour(world.game, plan).result, Result::refused);
  EXPECT_TRUE(startTour(world.game, plan).alerts.empty());
  plan.showsPerVenue = 3;
  addTourLocation(world.game, plan, 0);
  EXPECT_EQ(startTour(world.game, plan).alerts.at(0).message,
            "\nThe weekly energy cost of this tour exceeds your available energy:\n\nMAX: 29\nWEEKLY DEDUCTION: "
            "30\n\nRemove shows to lower your cost.");
}

TEST(TourPlanning, TheFeedHearsOfEachCity) {
  TourWorld world;
  world.sign(100, 0);
  world.state.weekNumber = 51;
  world.state.weekNumberForTracking = 51;
  world.settle();
  TourPlan plan = world.plan(0, 0);
  plan.showsPerVenue = 3;
  addTourLocation(world.game, plan, 25);
  addTourLocation(world.game, plan, 6);
  EXPECT_FALSE(nameTour(world.state, plan, "  ").done());
  EXPECT_EQ(startTour(world.game, plan).alerts.at(0).title, "🔥 Enter a Title 🔥");
  EXPECT_TRUE(nameTour(world.state, plan, " éclairs of the nIGHT ").done());
  world.expectPost();
  EXPECT_TRUE(startTour(world.game, plan).done());
  EXPECT_EQ(world.state.saveAllChirpList[0].message,
            "I'm excited to announce my highly anticipated 2-city tour: Éclairs Of The NIGHT! Tour dates and locations "
            "below:\n\nDec 7 | Tennessee, USA\nJAN 14 | Yokahama, Japan");
  EXPECT_EQ(world.state.onTourEnergyCost, 45);
  EXPECT_EQ(world.state.saveAllMusicTourList[0].tourTitle, "Éclairs Of The NIGHT");
  EXPECT_FALSE(nameTour(world.state, plan, "éclairs of the nIGHT").done());
  EXPECT_TRUE(nameTour(world.state, plan, "éclairs of the night").done());  // compared letter for letter
}

TEST(Tours, AShowPaysAfterItsLabel) {
  struct Case {
    int64_t label;
    bool signedTo;
    double net;
  };
  for (const Case& one : {Case{1, false, 2'500 * 25.0}, Case{0, true, 2'500 * 40 * 0.7}, Case{1, true, 2'500 * 25.0}}) {
    TourWorld world;
    world.state.isLabelLaunched = one.label;
    if (one.signedTo) world.sign(110, 0.3);
    putOnTour(world.state, {venueOnTour("Ryman Auditorium", 2, 9'000)}, 10);
    world.settle();
    runWeeklyTourShow(world.game);
    const WeeklyTourSales& show = world.state.saveAllWeeklyTourSales[0];
    EXPECT_DOUBLE_EQ(show.tourRevenue, one.net);
    EXPECT_EQ(show.seatsSold, 2'500);
    EXPECT_EQ(show.soldOut, 1);
    EXPECT_EQ(world.game.turn.seatsSoldOnTourForMerch, 2'500);
    EXPECT_EQ(world.state.saveAllMusicTourList[0].grossRevenue, 375'000);
    EXPECT_EQ(world.state.saveAllMusicTourList[0].numberOfShows, 1);
    EXPECT_EQ(world.state.onTour, 1);
  }
}

TEST(Tours, StandStillWithoutALabel) {
  TourWorld world;
  putOnTour(world.state, {venueOnTour("Ryman Auditorium", 2, 900)}, 10);
  world.settle();
  runWeeklyTourShow(world.game);
  EXPECT_TRUE(world.state.saveAllWeeklyTourSales.empty());
  EXPECT_EQ(world.state.onTourEnergyCost, 10);
  world.state.underContract = 1;  // and its record is lost: nothing is taken
  world.settle();
  runWeeklyTourShow(world.game);
  EXPECT_DOUBLE_EQ(world.state.saveAllWeeklyTourSales[0].tourRevenue, 135'000);
  EXPECT_EQ(world.state.saveAllWeeklyTourSales[0].soldOut, 0);
}

/// The coming week's energy is told before the week ends, whatever ends with it.
TEST(Tours, TheEndIsForeseen) {
  for (const int64_t shows : {1, 2}) {
    for (const int64_t jobWeeks : {0, 5}) {
      TourWorld world;
      world.sign(110, 0.3);
      world.state.totalEnergyAvailable = world.state.totalEnergyMax = 100;
      world.state.weeklyEnergyCost = 15;
      world.state.weeklyJobContractRemaining = jobWeeks;
      MusicTour played = venueOnTour("Tabernacle", 0, 9);
      played.hasPerformed = true;
      putOnTour(world.state, {played, venueOnTour("Ryman Auditorium", shows, 900)}, 25);
      world.settle();
      const int64_t foreseen = nextWeeksEnergy(world.state);
      if (shows == 1) world.random.integerIs(52, 70, 60);
      runWeeklyTourShow(world.game);
      EXPECT_EQ(world.state.timeUntilNextTour, shows == 1 ? 60 : 0);
      EXPECT_EQ(world.state.weeklyEnergyCost, shows == 1 ? -10 : 15);
      advanceJobContract(world.game);
      applyWeeklyEnergy(world.game);
      EXPECT_EQ(world.state.totalEnergyAvailable, foreseen) << shows << " shows, " << jobWeeks << " weeks of work";
    }
  }
}

TEST(Tours, ProgressTellsTheLatestTour) {
  TourWorld world;
  world.sign(110, 0);
  MusicTour old = venueOnTour("Tabernacle", 0, 9);
  old.hasPerformed = true;
  old.grossRevenue = 1'350;
  putOnTour(world.state, {old}, 5);
  WeeklyTourSales sales;
  sales.tourId = world.state.tourId;
  world.state.saveAllWeeklyTourSales.append(sales);
  putOnTour(world.state, {venueOnTour("Hollywood Bowl", 1, 1'000), venueOnTour("Ryman Auditorium", 3, 9'000)}, 20);
  world.settle();
  for (int week = 0; week < 2; ++week) runWeeklyTourShow(world.game);
  const TourProgress tour = tourProgress(world.state);
  EXPECT_EQ(tour.played.size(), 2u);
  EXPECT_EQ(tour.showsLeft, 2);
  EXPECT_EQ(tour.seatsSold, 3'500);
  EXPECT_EQ(tour.seatsOffered, 5'000);
  EXPECT_EQ(tour.grossRevenue, 3'500 * 150);
  EXPECT_DOUBLE_EQ(tour.net, 3'500 * 40.0);
}

std::vector<std::string> newsKeys(Game& game) {
  std::vector<News> all;
  addLiveNews(game, all);
  std::vector<std::string> keys;
  for (const News& news : all) keys.push_back(std::string(news.kind == News::Kind::first ? "first " : "") + news.key);
  return keys;
}

TEST(Tours, NewsTellsFirstsTheBestAndTheEnd) {
  TourWorld world;
  world.sign(110, 0);
  putOnTour(
      world.state,
      {venueOnTour("A", 2, 700), venueOnTour("B", 1, 600), venueOnTour("C", 1, 2'400), venueOnTour("D", 1, 2'600)}, 20);
  world.settle();
  std::vector<std::vector<std::string>> told;
  world.random.integerIs(52, 70, 52);
  for (int week = 0; week < 5; ++week) {
    world.game.turn.before.week = {world.state.weekNumber, world.state.yearNumber};
    runWeeklyTourShow(world.game);
    told.push_back(newsKeys(world.game));
    world.state.weekNumber += 1;
  }
  const std::vector<std::vector<std::string>> expected = {
      {"first show"}, {}, {}, {"best show"}, {"first sold out", "tour over"}};
  EXPECT_EQ(told, expected);
  world.state.weekNumber = 1;
  world.settle();
}

TEST(Tours, DatesFollowTheirOwnMonths) {
  const std::pair<int64_t, const char*> dates[] = {{1, "JAN 7"},   {5, "JAN 1"},   {6, "Feb 7"},
                                                   {38, "Oct 21"}, {43, "Oct 21"}, {44, "Nov 28"},
                                                   {52, "Dec 14"}, {53, "JAN 7"},  {110, "Feb 7"}};
  for (const auto& [week, date] : dates) EXPECT_EQ(showDate(week), date) << week;
}

}  // namespace
}  // namespace backbeat
