#include "turn/weekly_events.h"

#include <gtest/gtest.h>

#include "core/purse.h"
#include "music/builders.h"
#include "support/world.h"
#include "turn/event_rewards.h"
#include "turn/screens/weekly_summary_view_controller.h"

namespace backbeat {
namespace {

/// A beginner with a full week, a little cash and one song of this year.
struct GigWorld : World {
  GigWorld() {
    state.totalCashAvailable = 500;
    Song song = releasedSong(12, "Half moon café");
    song.productionRating = 57.9;
    state.saveAllSongList.append(song);
    settle();
  }
  Outcome take(int64_t id) { return resolveWeeklyEvent(game, events, id); }
  void draw(EventButton& button, int64_t id) {
    random.integerIs(0, 14, id - 1);
    drawWeeklyEvent(game, events, button);
  }
  WeeklyEvents events;
};

const Alert& only(const Outcome& outcome) {
  EXPECT_EQ(outcome.alerts.size(), 1u);
  return outcome.alerts.front();
}

TEST(WeeklyEvents, OnePointOfEnergyShortNothingIsPaidAndNothingHappens) {
  const std::pair<int64_t, int64_t> costs[] = {
      {1, 25},  {2, 30},  {3, 15},  {4, 35},  {5, 65},  {7, 40}, {8, 30}, {9, 50},
      {11, 20}, {12, 25}, {13, 15}, {14, 15}, {15, 50}, {16, 25}};  // 16 stands for a verse: option 14, the other way
  for (const auto& [id, energy] : costs) {
    SCOPED_TRACE(id);
    GigWorld world;
    world.state.totalFans = 50'000;
    world.state.totalEnergyAvailable = energy - 1;
    world.settle();
    world.events.featuredArtistEligible = id == 16 ? 1 : 0;
    if (id == 7) world.random.integerIs(0, 100, 0);  // the judges' mood comes first
    const GameState before = world.state;
    const Outcome outcome = world.take(id == 16 ? 14 : id);
    EXPECT_EQ(only(outcome).title, "Not Enough Energy");
    EXPECT_EQ(outcome.feedback, Feedback::energyBounce);
    EXPECT_TRUE(world.state == before);
  }
  GigWorld world;
  world.state.totalEnergyAvailable = 39;
  world.settle();
  world.random.integerIs(0, 100, 0);
  EXPECT_EQ(only(world.take(7)).message, "\nYou do not have enough energy available to let loose on Karaoke night.");
}

TEST(WeeklyEvents, WorkTurnsEnergyIntoCash) {
  struct Work {
    int64_t id, energy;
    double lo, hi;
    const char* title;
  };
  for (const Work& work : {Work{2, 30, 50, 250, "💪 Odd Jobs 💪"}, Work{3, 15, 10, 50, "🎧 Studio Rented! 🎧"},
                           Work{4, 35, 10, 50, "📝 Ghost Writer! 📝"}, Work{11, 20, 10, 50, "Your Beats are 🔥"},
                           Work{13, 15, 20, 50, "🎼 Music Teacher 🎼"}}) {
    SCOPED_TRACE(work.title);
    GigWorld world;
    world.random.doubleIs(work.lo, work.hi, 49.75);
    const Outcome outcome = world.take(work.id);
    EXPECT_EQ(only(outcome).title, work.title);
    EXPECT_NE(only(outcome).message.find("$50 💰"), std::string::npos);
    EXPECT_EQ(world.state.totalEnergyAvailable, 100 - work.energy);
    EXPECT_DOUBLE_EQ(world.state.totalCashAvailable, 549.75);
  }
}

TEST(WeeklyEvents, AppearancesWinFans) {
  GigWorld world;
  world.state.totalFans = 1'001;
  world.settle();
  world.random.doubleIs(1, 50, 7.9);
  EXPECT_EQ(only(world.take(1)).message, "\nWhat a night! You gained 7 new fan(s)!");
  world.random.doubleIs(1, 50, 3);
  EXPECT_EQ(only(world.take(14)).title, "1️⃣ Fans Come First 1️⃣");
  world.random.integerIs(0, 200, 157).doubleIs(1'000, 10'000, 2'000.6).doubleIs(0, 10, 0.5).integerIs(2, 10, 9);
  EXPECT_EQ(only(world.take(12)).message,
            "\nAfter 9 takes, you posted your video on TikTak and gained 2001 new fan(s)!");
  EXPECT_EQ(world.state.totalFans, 1'001 + 7 + 3 + 2'001);
  EXPECT_EQ(world.state.totalEnergyAvailable, 100 - 25 - 15 - 25);
}

TEST(WeeklyEvents, TheRadioLiftsThisYearsAlbumsAndTheirSongs) {
  GigWorld world;
  world.state.yearNumber = 2025;
  world.state.songWriting = world.state.vocalRange = world.state.rhythm = 30;
  world.state.charisma = world.state.virality = 30;
  Album fresh = releasedAlbum(5, "Fresh");
  fresh.releaseYear = 2025;
  world.state.saveAllAlbumList.append(fresh);
  world.state.saveAllAlbumList.append(releasedAlbum(6, "Old"));
  Song onFresh = songInProduction(20, "Waiting");
  onFresh.albumId = 5;
  onFresh.marketingScore = 0;  // its launch begins again
  world.state.saveAllSongList.append(onFresh);
  world.settle();
  EXPECT_EQ(only(world.take(5)).title, "📻 State Radio Show! 📻");
  EXPECT_DOUBLE_EQ(world.state.saveAllAlbumList[0].marketingScore, 9);
  EXPECT_DOUBLE_EQ(world.state.saveAllAlbumList[1].marketingScore, 5);
  EXPECT_DOUBLE_EQ(world.state.saveAllSongList[0].marketingScore, 10);
  EXPECT_DOUBLE_EQ(world.state.saveAllSongList[1].marketingScore, 2);
  EXPECT_EQ(world.state.totalEnergyAvailable, 35);
}

TEST(WeeklyEvents, TheStationFollowsTheSkill) {
  for (const auto& [skill, title] : {std::pair{29, "📻 Local Radio Show! 📻"},
                                     {30, "📻 State Radio Show! 📻"},
                                     {79, "⭐️ National Radio Show! ⭐️"},
                                     {80, "⭐️ International Radio Show! ⭐️"}}) {
    GigWorld world;
    GameState& state = world.state;
    for (int64_t* trait : {&state.songWriting, &state.vocalRange, &state.rhythm, &state.charisma, &state.virality}) {
      *trait = skill;
    }
    world.settle();
    EXPECT_EQ(only(world.take(5)).title, title);
  }
}

TEST(WeeklyEvents, AButtonIsTooDearByWhatAPressTakes) {
  GigWorld world;
  const auto priceOn = [&](const EventButton& button) {
    return *eventCard(world.state, world.events, button, "press").buttons.front().price;
  };
  world.state.totalEnergyAvailable = 20;
  world.draw(world.events.buttonEvent1, 11);
  EXPECT_EQ(priceOn(world.events.buttonEvent1).energy, 30);
  EXPECT_TRUE(affordable(world.state, priceOn(world.events.buttonEvent1))) << "it takes 20";
  world.random.integerIs(0, 14, 9).doubleIs(0.10, 0.25, 0.1);
  drawWeeklyEvent(world.game, world.events, world.events.buttonEvent2);
  world.state.totalCashAvailable = 60;
  EXPECT_TRUE(affordable(world.state, priceOn(world.events.buttonEvent2)));
  world.events.moneyForEvent10 = 100;  // the latest draw asks for more
  EXPECT_DOUBLE_EQ(priceOn(world.events.buttonEvent2).dollars, 50);
  EXPECT_FALSE(affordable(world.state, priceOn(world.events.buttonEvent2)));
  world.state.saveAllVentureInvestments.append(Venture());
  world.draw(world.events.buttonEvent3, 10);
  world.state.totalEnergyAvailable = 0;
  EXPECT_EQ(priceOn(world.events.buttonEvent3).energy, 50);
  EXPECT_TRUE(affordable(world.state, priceOn(world.events.buttonEvent3))) << "a raise takes no energy";
  world.settle();
}

TEST(WeeklyEvents, TheCheckupMovesTheCeilingForCash) {
  GigWorld world;
  world.state.totalCashAvailable = 250;
  world.settle();
  world.random.integerIs(-2, 2, -2).integerIs(-2, 2, 1);
  EXPECT_EQ(only(world.take(6)).message,
            "\nYou have seen some decline in your energy levels. Your total energy decreased by -2");
  world.take(6);
  EXPECT_EQ(world.state.totalEnergyMax, 99);
  EXPECT_EQ(world.state.annualCheckupTotal, -1);
  EXPECT_DOUBLE_EQ(world.state.totalCashAvailable, 50) << "a rating of 1 costs 100";
  EXPECT_EQ(only(world.take(6)).title, "Not Enough Cash");
}

TEST(WeeklyEvents, TheTalentShowTakesTheBestSongOrBlamesTheWorst) {
  GigWorld world;
  Song weak = releasedSong(15, "Weak one");
  weak.productionRating = 8;
  world.state.saveAllSongList.append(weak);
  world.settle();
  world.random.integerIs(0, 100, 1).doubleIs(1, 5, 2.5).integerIs(3, 7, 7);
  EXPECT_EQ(
      only(world.take(7)).message,
      "\nYou chose to sing HALF MOON CAFÉ (57)\n\nYou gave the audience a SHOW and the judges gave you a standing "
      "ovation, but it wasn't enough to make it to the next round.\n\nYou gained 14 new fan(s)!");
  EXPECT_EQ(world.state.totalFans, 14);
  world.random.integerIs(0, 100, 2);
  EXPECT_NE(only(world.take(7)).message.find("WEAK ONE (8)\n\nWhat an experience"), std::string::npos);
  world.state.totalEnergyAvailable = 40;
  world.state.yearNumber = 2025;  // no song is recent any more
  world.settle();
  world.random.integerIs(0, 100, 100);
  EXPECT_EQ(only(world.take(7)).message,
            "\nWhat an experience singing before Simon Howell...Unfortunately you were cut immediately after your "
            "audition.");
  EXPECT_EQ(world.state.totalEnergyAvailable, 0);
}

TEST(WeeklyEvents, DropShippingWinsOrLosesTheSameAmount) {
  GigWorld world;
  world.random.doubleIs(50, 250, 200).integerIs(0, 1, 1);
  EXPECT_NE(only(world.take(8)).message.find("You lost -$200 trying to drop ship."), std::string::npos);
  EXPECT_DOUBLE_EQ(world.state.totalCashAvailable, 300);
  world.random.doubleIs(50, 250, 200).integerIs(0, 1, 0);
  EXPECT_NE(only(world.take(8)).message.find("You gained $200 💰"), std::string::npos);
  EXPECT_DOUBLE_EQ(world.state.totalCashAvailable, 500);
}

TEST(WeeklyEvents, EveryGoodCausePaysTheLatestAmount) {
  GigWorld world;
  world.random.integerIs(0, 100, 61);
  world.random.integerIs(0, 14, 9).doubleIs(0.10, 0.25, 0.1);
  world.random.integerIs(0, 14, 9).doubleIs(0.10, 0.25, 0.2);
  drawWeeklyEventCount(world.game, world.events);
  EXPECT_EQ(world.events.buttonEvent1.caption(), "Go Fund You $50");
  EXPECT_EQ(world.events.buttonEvent2.caption(), "Go Fund You $100");
  EXPECT_FALSE(world.events.buttonEvent3.shown());
  world.random.integerIs(-1, 1, 1);
  EXPECT_NE(only(pressEventButton(world.game, world.events, world.events.buttonEvent1)).message.find("gained +1 in"),
            std::string::npos);
  EXPECT_DOUBLE_EQ(world.state.totalCashAvailable, 400);
  EXPECT_EQ(world.state.charisma, 2);
  world.expectSaved();

  world.events.moneyForEvent10 = -20;  // drawn from debts: less than nothing, and still more than there is
  world.state.totalCashAvailable = -100;
  world.settle();
  EXPECT_EQ(only(world.take(10)).message, "\nYou do not have enough cash available to make this gift");
}

TEST(WeeklyEvents, ThePortfolioAtThePressDecidesWhoAsks) {
  GigWorld world;
  Venture venture;
  venture.currentFundingRound = 4;
  world.state.saveAllVentureInvestments.append(venture);
  world.settle();
  world.random.integerIs(0, 14, 9).doubleIs(0.02, 0.05, 0.04);
  drawWeeklyEvent(world.game, world.events, world.events.buttonEvent1);
  EXPECT_EQ(world.events.buttonEvent1.caption(), "Family Request $20");
  EXPECT_NE(only(world.take(10)).message.find("roughly $500,000 from 0-18"), std::string::npos);
  EXPECT_DOUBLE_EQ(world.state.totalCashAvailable, 480);
  world.expectSaved();

  world.state.saveAllVentureInvestments.update(0, [](Venture& v) { v.currentFundingRound = 3; });
  world.settle();
  world.draw(world.events.buttonEvent2, 10);
  EXPECT_EQ(world.events.buttonEvent2.caption(), "Venture Raise 50");
  const GameState before = world.state;
  EXPECT_EQ(world.take(10).go->segue, "goToVentureDeal");
  EXPECT_EQ(world.game.launch.ventures.ventureDealKind, 2);
  EXPECT_EQ(world.game.launch.ventures.ventureDealIndex, 0);
  EXPECT_TRUE(world.state == before);
}

TEST(WeeklyEvents, APitchIsOfACompanyThatWasNeverBacked) {
  GigWorld world;
  world.state.totalEnergyAvailable = 100;
  world.settle();
  world.random.integerIs(0, 9, 6);
  EXPECT_EQ(world.take(9).go->segue, "goToVentureDeal");
  EXPECT_EQ(world.game.launch.ventures.ventureDealIndex, 6);
  EXPECT_EQ(world.state.totalEnergyAvailable, 50);
  world.expectSaved();

  Venture held;
  held.businessId = 1;
  world.state.saveAllVentureInvestments.append(held);
  world.settle();
  for (int64_t i = 9; i >= 1; --i) world.random.integerIs(0, i, i);  // the shuffle leaves the order
  world.take(9);
  EXPECT_EQ(world.game.launch.ventures.ventureDealIndex, 1);
  world.expectSaved();

  world.state.totalEnergyAvailable = 60;
  while (world.state.saveAllVentureInvestments.size() < 10) world.state.saveAllVentureInvestments.append(held);
  world.settle();
  EXPECT_EQ(only(world.take(9)).title, "Nothing of Interest");
  EXPECT_EQ(world.state.totalEnergyAvailable, 60);
  world.state.totalEnergyAvailable = 49;
  world.settle();
  EXPECT_EQ(only(world.take(9)).title, "Not Enough Energy") << "which is said first";
}

TEST(WeeklyEvents, TheLatestDrawSaysWhetherAFanOrAVerseWaits) {
  GigWorld world;
  world.state.songWriting = world.state.vocalRange = world.state.rhythm = world.state.charisma = 30;
  world.state.virality = 30;
  world.draw(world.events.buttonEvent1, 14);
  EXPECT_EQ(world.events.buttonEvent1.caption(), "Feature Request 25");
  world.state.charisma = 29;  // 179 in six parts: 29
  world.settle();
  world.draw(world.events.buttonEvent2, 14);
  EXPECT_EQ(world.events.buttonEvent2.caption(), "Fan Meeting 15");
  world.random.doubleIs(1, 5, 5);
  EXPECT_EQ(only(pressEventButton(world.game, world.events, world.events.buttonEvent1)).title,
            "1️⃣ Fans Come First 1️⃣");
  world.events.featuredArtistEligible = 1;
  EXPECT_EQ(world.take(14).go->segue, "goToFeatureForAnArtist");
  EXPECT_EQ(world.state.totalEnergyAvailable, 60);
}

TEST(WeeklyEvents, AFestivalLooksAtFansSongsAndEnergyInThatOrder) {
  GigWorld world;
  world.state.yearNumber = 2028;
  world.state.totalEnergyAvailable = 0;
  world.state.totalFans = 49'999;
  EXPECT_EQ(only(world.take(15)).title, "You Weren't Selected");
  world.state.totalFans = 50'000;
  EXPECT_EQ(only(world.take(15)).title, "No Recent Songs");
  world.state.yearNumber = 2027;
  EXPECT_EQ(only(world.take(15)).title, "Not Enough Energy");
  world.state.totalEnergyAvailable = 50;
  world.settle();
  EXPECT_EQ(world.take(15).go.value_or(Go{}).segue, "goToFestivalInvite");
  EXPECT_EQ(world.state.totalEnergyAvailable, 0);
}

TEST(WeeklyEvents, AWeekOffersNoneToThreeAndAPressedButtonIsGone) {
  for (const auto& [roll, count] : {std::pair{20, 0}, {21, 1}, {60, 1}, {61, 2}, {90, 2}, {91, 3}}) {
    GigWorld world;
    world.random.integerIs(0, 100, roll);
    for (int i = 0; i < count; ++i) world.random.integerIs(0, 14, 10);
    drawWeeklyEventCount(world.game, world.events);
    const WeeklyEvents& events = world.events;
    EXPECT_EQ(events.buttonEvent1.shown() + events.buttonEvent2.shown() + events.buttonEvent3.shown(), count) << roll;
  }
  GigWorld world;
  world.draw(world.events.buttonEvent1, 11);
  EXPECT_EQ(world.events.buttonEvent1.caption(), "Sell Your Beats 30") << "and takes 20";
  world.state.totalEnergyAvailable = 19;
  EXPECT_EQ(only(pressEventButton(world.game, world.events, world.events.buttonEvent1)).title, "Not Enough Energy");
  EXPECT_FALSE(world.events.buttonEvent1.shown());
  world.state.totalEnergyAvailable = 100;
  EXPECT_TRUE(pressEventButton(world.game, world.events, world.events.buttonEvent1).alerts.empty());
}

TEST(EventRewards, TablesFallAgainAtTheTopAndBetweenTheirRows) {
  World world;
  const auto appearance = [&](int64_t fans, double hi) {
    world.state.totalFans = fans;
    world.random.doubleIs(1, hi, hi);
    EXPECT_EQ(fanGainForAppearance(world.game), static_cast<int64_t>(hi));
  };
  appearance(100, 5);
  appearance(10'001, 50);
  appearance(10'002, 100);
  appearance(6'000'000'000, 10'000'000);
  appearance(6'000'000'001, 14);
  const auto hustle = [&](double cash, double hi) {
    world.state.totalCashAvailable = cash;
    world.random.doubleIs(50, hi, 60);
    hustleAmount(world.game);
  };
  hustle(0, 250);
  hustle(999.5, 500);
  hustle(-1, 500);
  hustle(99'999, 5'000);
  hustle(100'000, 500);
  world.state.studioBooth = 96;  // the other four parts are at 1
  world.random.doubleIs(500, 10'000, 900);
  studioRentalIncome(world.game);
  world.state.songWriting = 101;
  world.random.doubleIs(50, 10'000, 900);
  ghostWritingIncome(world.game);
  world.state.vocalRange = 140;
  world.random.doubleIs(600, 10'000, 900);
  musicLessonIncome(world.game);
  world.state.vocalRange = 141;
  world.random.doubleIs(50, 10'000, 900);
  musicLessonIncome(world.game);
  world.random.integerIs(0, 200, 158).doubleIs(1, 5, 1.5).doubleIs(0, 14, 1.5);
  EXPECT_EQ(tikTakFanGain(world.game), 3) << "cut once, after the sum";
}

}  // namespace
}  // namespace backbeat
