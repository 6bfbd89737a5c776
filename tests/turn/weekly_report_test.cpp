#include "turn/weekly_report.h"

#include <gtest/gtest.h>

#include "career/builders.h"
#include "career/ledger.h"
#include "core/calendar.h"
#include "core/view_find.h"
#include "support/world.h"
#include "turn/screens/weekly_summary_view_controller.h"

namespace backbeat {
namespace {

/// A record of week 5, 2023, which week 6 reports.
template <class T>
T ofWeekFive(T record) {
  record.weekNumber = 5;
  record.yearNumber = 2023;
  return record;
}

struct ReportWorld : World {
  ReportWorld() {
    state.weekNumber = 6;
    state.weekNumberForTracking = 6;
    ensureBasicNeeds(game);
  }
  void addSong(int64_t songId, int64_t listens, double revenue) {
    WeeklySongListens week = ofWeekFive(WeeklySongListens());
    week.songId = songId;
    week.songListens = listens;
    week.totalStreamRevenue = revenue;
    state.saveAllWeeklySongListens.append(week);
  }
  void addShow(double revenue, int64_t soldOut) {
    WeeklyTourSales show = ofWeekFive(WeeklyTourSales());
    show.tourLocation = "Oslo";
    show.tourRevenue = revenue;
    show.soldOut = soldOut;
    state.saveAllWeeklyTourSales.append(show);
  }
  void addItem(double amount, bool isExpense, int64_t type) {
    WeeklyLineItem item;
    item.amount = amount;
    item.isExpense = isExpense;
    item.typeOfExpense = type;
    state.saveAllWeeklyLineItems.append(item);
  }
  /// The three counts of one post.
  void expectPost() { random.doubleIs(0.005, 0.02, 0.01).doubleIs(0.05, 0.2, 0.1).doubleIs(0.05, 0.2, 0.2); }
  WeeklyReport settled() {
    settle();
    WeeklyReport report = buildWeeklyReport(game);
    settleWeeklyCash(game, report);
    expectSaved();
    return report;
  }
};

bool shows(const View& view, const std::string& title) { return rowTitled(view, title).title == title; }

std::vector<std::string> cardPresses(const View& view) {
  std::vector<std::string> presses;
  for (const Card& card : blocksOf<Card>(view)) presses.push_back(card.buttons.at(0).id);
  return presses;
}

TEST(WeeklyReport, EveryLineReachesTheCash) {
  ReportWorld world;
  world.state.totalCashAvailable = 1'000;
  world.state.followerCount = 1'000;
  world.addItem(30, false, 3);
  Child child;
  child.weeklyFinancialCost = 200;
  child.typeOfRelationship = 1;
  world.state.saveAllChildList.append(child);
  child.typeOfRelationship = -1;  // gone: costs nothing
  world.state.saveAllChildList.append(child);
  WeeklyAlbumSales album = ofWeekFive(WeeklyAlbumSales());
  album.albumRevenue = 400;
  world.state.saveAllWeeklyAlbumSales.append(album);
  world.addShow(5'000, 1);
  Festival festival = ofWeekFive(Festival());
  festival.payment = 7'000;
  world.state.saveAllFestivalList.append(festival);
  festival.payment = 9'000;  // a second one that week goes unpaid
  world.state.saveAllFestivalList.append(festival);
  world.state.isLabelLaunched = 1;
  world.state.labelRevenueBonus = 10;
  world.state.labelOfficePerkSpend = 15;
  world.state.labelOfficeRent = 60;
  world.state.saveAllEmployeeList.append(Employee());
  world.state.saveAllEmployeeList.append(Employee());
  SignedArtistWeeklySongListens artistSong = ofWeekFive(SignedArtistWeeklySongListens());
  artistSong.totalStreamRevenue = 100;
  world.state.saveAllSignedArtistWeeklySongListens.append(artistSong);
  FeaturedOnWeeklySongListens featured = ofWeekFive(FeaturedOnWeeklySongListens());
  featured.totalStreamRevenue = 11;
  world.state.saveAllFeaturedOnWeeklySongListens.append(featured);
  MerchWeeklySales merch = ofWeekFive(MerchWeeklySales());
  merch.merchGross = 50;
  merch.merchTransactionFees = 5;
  merch.unitsSold = 4;
  world.state.saveAllMerchWeeklySales.append(merch);
  WeeklyVideoViews views = ofWeekFive(WeeklyVideoViews());
  views.totalViewRevenue = 13;
  world.state.saveAllWeeklyVideoViews.append(views);
  world.state.weeklyJobIncome = 320;
  world.random.integerIs(0, 5, 2);  // the papers write about the festival before the artist posts about the show
  world.expectPost();

  const WeeklyReport report = world.settled();
  EXPECT_FALSE(report.festival.value_or(Festival()).topReview.empty());
  EXPECT_DOUBLE_EQ(report.totalRevenue, 30 + 400 + 5'000 + 7'000 + 110 + 11 + 45 + 13 + 320);
  EXPECT_DOUBLE_EQ(report.totalExpenses, 50 + 200 + 2 * 15 + 60);
  EXPECT_DOUBLE_EQ(world.state.totalCashAvailable, 1'000 + report.totalRevenue - report.totalExpenses);
  EXPECT_DOUBLE_EQ(world.state.totalRecordLabelCost, 90);
  EXPECT_EQ(report.merchUnits, 4);
}

TEST(WeeklyReport, OnlyTheMostStreamedSongIsPaid) {
  ReportWorld world;
  world.addSong(12, 300, 0.3);
  world.addSong(15, 900, 0.9);
  world.addSong(18, 900, 5);  // as many, and later in the list
  const WeeklyReport report = world.settled();
  EXPECT_EQ(report.weeklySongListens.size(), 3u);
  EXPECT_DOUBLE_EQ(report.totalRevenue, 0.9);
  ReportWorld silent;
  EXPECT_DOUBLE_EQ(silent.settled().totalRevenue, 0);
  EXPECT_DOUBLE_EQ(silent.state.totalCashAvailable, -50) << "cash has no floor";
}

TEST(WeeklyReport, ATourThatLostMoneyIsAnExpenseAndItsShowIsTold) {
  ReportWorld world;
  world.addShow(-800, 0);
  world.state.followerCount = 1'000;
  world.random.integerIs(0, 19, 3);
  world.expectPost();
  const WeeklyReport report = world.settled();
  EXPECT_DOUBLE_EQ(report.totalRevenue, 0);
  EXPECT_DOUBLE_EQ(report.totalExpenses, 850);
  EXPECT_EQ(world.state.saveAllChirpList[0].message.find("Sold out"), std::string::npos);

  ReportWorld lucky;
  lucky.addShow(100, 0);
  lucky.addShow(9'000, 1);  // the first is paid, the sold-out one is told
  lucky.state.followerCount = 1'000;
  lucky.settle();
  lucky.expectPost();
  lucky.random.integerIs(0, 100, 0);
  WeeklySummaryViewController screen(lucky.game);
  screen.open();
  EXPECT_DOUBLE_EQ(screen.report().totalRevenue, 100);
  EXPECT_TRUE(shows(screen.view(), "Sold Out Show 🔥"));
  ASSERT_EQ(lucky.state.saveAllChirpList.size(), 1u);
  const Chirp& chirp = lucky.state.saveAllChirpList[0];
  EXPECT_EQ(chirp.message, "Sold out show 🔥 Oslo");
  EXPECT_EQ(chirp.imageString, "chirpProfilePic.png");
  EXPECT_EQ(chirp.likeCount, 10);
  EXPECT_EQ(chirp.reChirpCount, 2);
}

TEST(WeeklyReport, LabelCostsEndAt24999) {
  ReportWorld world;
  world.addItem(100, true, 9'999);
  world.addItem(20, true, 10'000);
  world.addItem(3, true, 24'999);
  world.addItem(500, true, 25'000);
  EXPECT_DOUBLE_EQ(world.settled().totalExpenses, 50 + 623);
  EXPECT_DOUBLE_EQ(world.state.totalRecordLabelCost, 23);
}

TEST(WeeklyReport, WeekOneReportsWeekFiftyTwo) {
  GameState state;
  state.weekNumber = 1;
  state.yearNumber = 2024;
  EXPECT_EQ(reportedWeek(state), (CalendarWeek{52, 2023}));
  state.weekNumber = 2;
  EXPECT_EQ(reportedWeek(state), (CalendarWeek{1, 2024}));
}

TEST(WeeklyReport, TheRatingOfferComesBackEveryYearUntilItIsAnswered) {
  ReportWorld world;
  world.state.weekNumber = 31;
  world.settle();
  const auto appeared = [&] { return WeeklySummaryViewController(world.game).appear(); };
  EXPECT_EQ(appeared().alerts.size(), 1u);
  world.state.yearNumber += 1;
  const Outcome offer = appeared();
  ASSERT_EQ(offer.alerts.size(), 1u);
  ASSERT_EQ(offer.alerts[0].buttons.size(), 4u);
  WeeklySummaryViewController screen(world.game);
  screen.act(offer.alerts[0].buttons[3].action);
  EXPECT_EQ(world.state.totalEnergyAvailable, 350) << "over the ceiling";
  EXPECT_EQ(world.platform.reviews, 0) << "only the best answer asks for more";
  EXPECT_TRUE(appeared().alerts.empty());
  screen.act(offer.alerts[0].buttons[0].action);
  EXPECT_EQ(world.state.totalEnergyAvailable, 350) << "an answer to what is not asked any more";
  EXPECT_EQ(world.platform.reviews, 0);
  ReportWorld pleased;
  pleased.state.weekNumber = 31;
  pleased.settle();
  WeeklySummaryViewController(pleased.game).act(offer.alerts[0].buttons[0].action);
  EXPECT_EQ(pleased.platform.reviews, 1);
}

TEST(WeeklyReport, ABonusThatIsTakenBackIsToldAsALine) {
  ReportWorld world;
  world.state.totalCashAvailable = 40'000;
  ContractLabel contract = contractWith("Tall Ships", 1, 5);
  contract.initialCash = 150'000;
  contract.numberOfSongs = 1;
  signContract(world.state, contract);
  world.settle();
  world.random.integerIs(0, 100, 0);
  WeeklySummaryViewController screen(world.game);
  screen.open();
  ASSERT_EQ(screen.appear().alerts.size(), 1u);
  EXPECT_EQ(figureLabelled(screen.view(), "Signing bonus paid back").value, "-$150,000");
  EXPECT_EQ(figureLabelled(screen.view(), "Total cost").value, "-$150,050");
  EXPECT_EQ(figureLabelled(screen.view(), "Net").value, "-$150,050");
  EXPECT_EQ(figureLabelled(screen.view(), "Net").note, "cash -$110,050");
  EXPECT_DOUBLE_EQ(world.state.totalCashAvailable, -110'050);
}

TEST(WeeklyReport, AppearingTwiceRunsItsChainOnce) {
  ReportWorld world;
  world.state.weekNumber = 31;
  WeeklySummaryViewController screen(world.game);
  EXPECT_EQ(screen.appear().alerts.size(), 1u);
  EXPECT_TRUE(screen.appear().alerts.empty());
}

TEST(WeeklyReport, AQuestionThatALaunchTookAlongIsAskedAgain) {
  ReportWorld world;
  world.state.weekNumber = 31;
  world.random.integerIs(0, 100, 0);
  WeeklySummaryViewController before(world.game);
  before.open();
  EXPECT_EQ(before.appear().alerts.size(), 1u);
  WeeklySummaryViewController after(world.game);
  after.open();
  const Outcome offer = after.appear();
  ASSERT_EQ(offer.alerts.size(), 1u);
  EXPECT_TRUE(after.appear().alerts.empty()) << "once a launch";
  after.act(offer.alerts[0].buttons[1].action);
  WeeklySummaryViewController answered(world.game);
  answered.open();
  EXPECT_TRUE(answered.appear().alerts.empty());
}

TEST(WeeklyReport, SideGigsStandAsCardsUntilTheyArePressed) {
  ReportWorld world;
  world.settle();
  world.random.integerIs(0, 100, 61).integerIs(0, 14, 0).integerIs(0, 14, 14);
  WeeklySummaryViewController screen(world.game);
  screen.open();
  EXPECT_EQ(cardPresses(screen.view()), (std::vector<std::string>{"eventButton1", "eventButton2"}));
  world.random.doubleIs(1, 5, 3);
  screen.act({"eventButton1", ""});
  screen.act({"eventButton1", ""});
  EXPECT_EQ(world.state.totalEnergyAvailable, 75) << "paid once";
  EXPECT_EQ(cardPresses(screen.view()), (std::vector<std::string>{"eventButton2"}));
  EXPECT_TRUE(screen.act({"eventButton3", ""}).alerts.empty());
  screen.act({"eventButton2", ""});
  for (const Heading& heading : blocksOf<Heading>(screen.view())) EXPECT_FALSE(heading.text.starts_with("Chances"));
  EXPECT_TRUE(screen.act({"closeButton", ""}).go.has_value());
}

}  // namespace
}  // namespace backbeat
