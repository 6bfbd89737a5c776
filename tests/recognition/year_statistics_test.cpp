#include "recognition/year_statistics.h"

#include "core/view_find.h"
#include "life/builders.h"
#include "live/builders.h"
#include "music/builders.h"
#include "recognition/award_fields.h"
#include "recognition/builders.h"
#include "recognition/screens/yearly_music_stats_view_controller.h"
#include "recognition/year_in_review.h"
#include "support/dates.h"
#include "support/world.h"

namespace backbeat {
namespace {

void hear(GameState& state, int64_t year, int64_t week, int64_t songId, int64_t streams) {
  WeeklySongListens row;
  row.songId = songId;
  row.songTitle = "Song " + std::to_string(songId);
  row.songListens = streams;
  row.totalStreamRevenue = static_cast<double>(streams) / 10;
  row.weekNumber = week;
  row.yearNumber = year;
  state.saveAllWeeklySongListens.append(row);
}

void perform(GameState& state, int64_t year, int64_t week, int64_t seats, int64_t soldOut) {
  WeeklyTourSales show;
  show.tourId = 3;
  show.seatsSold = seats;
  show.soldOut = soldOut;
  show.tourRevenue = 500;
  show.weekNumber = week;
  show.yearNumber = year;
  state.saveAllWeeklyTourSales.append(show);
}

/// Two years of two songs, and a third year that begins.
struct Years : World {
  Years() {
    setDate(state, 2 * 52 + 1);  // the first week of 2025
    state.myArtistsName = "Ada";
    hear(state, 2023, 52, 1, 100);
    hear(state, 2024, 1, 1, 40);
    hear(state, 2024, 1, 2, 50);
    hear(state, 2024, 52, 1, 30);
  }
};

TEST(YearStatistics, AddUpTheRowsOfTheirYearAlone) {
  Years world;
  const YearOfKind songs = yearOfKind(world.state, YearKind::songs, 2024);
  EXPECT_EQ(songs.amount, 120);
  EXPECT_DOUBLE_EQ(songs.dollars, 12);
  EXPECT_EQ(songs.weeks.front(), 90);
  EXPECT_EQ(songs.weeks.back(), 30);
  ASSERT_EQ(songs.works.size(), 2u);
  EXPECT_EQ(songs.works[0].title, "Song 1");
  EXPECT_EQ(songs.works[0].amount, 70);
  EXPECT_EQ(yearOfKind(world.state, YearKind::songs, 2023).amount, 100);
  EXPECT_EQ(yearOfKind(world.state, YearKind::songs, 2025).amount, 0);
  EXPECT_EQ(yearOfKind(world.state, YearKind::merch, 2024).works.size(), 0u);

  perform(world.state, 2024, 9, 2'500, 1);
  perform(world.state, 2024, 10, 900, 0);
  const YearOfKind tours = yearOfKind(world.state, YearKind::tours, 2024);
  EXPECT_EQ(tours.shows, 2);
  EXPECT_EQ(tours.soldOut, 1);
  EXPECT_EQ(tours.works[0].title, "A tour") << "its venues are not known any more";
}

TEST(YearStatistics, LookAtAnyYearOfThisGeneration) {
  Years world;
  world.settle();
  YearlyMusicStatsViewController screen(world.game);
  screen.open();
  screen.appear();
  EXPECT_EQ(blockOf<Stepper>(screen.view()).value, "2024") << "nothing of 2025 is recorded yet";
  EXPECT_EQ(blockOf<Chart>(screen.view()).value, "120");
  EXPECT_EQ(blockOf<Chart>(screen.view()).note, "+20% on 2023");
  EXPECT_EQ(rowTitled(screen.view(), "Song 1").subtitle, "$7 · 100 in 2023");
  screen.act({"year", "-1"});
  EXPECT_EQ(blockOf<Chart>(screen.view()).note, "");
  screen.act({"year", "-1"});
  EXPECT_EQ(blockOf<Stepper>(screen.view()).value, "2023");
  screen.act({"kind", "1"});
  EXPECT_EQ(blockOf<EmptyHint>(screen.view()).text, "Nothing of this kind in 2023");
  EXPECT_EQ(screen.act({"yearInReview", ""}).go->argument, "2023");
  world.state.ageAtTakeover = 2024;
  screen.appear();
  EXPECT_EQ(blockOf<Stepper>(screen.view()).value, "2024") << "what was before belongs to others";
  world.settle();
}

TEST(YearStatistics, SayWhenTheirRecordsAreGone) {
  Years world;
  world.state.yearNumber = 2044;
  EXPECT_FALSE(recordsAreGone(world.state, 2023)) << "never cleared away";
  EXPECT_FALSE(recordsAreGone(world.state, 2025)) << "a year without music";
  world.state.saveAllWeeklySongListens.clear();
  EXPECT_TRUE(recordsAreGone(world.state, 2023));
  EXPECT_FALSE(recordsAreGone(world.state, 2024)) << "twenty years back";
  YearlyMusicStatsViewController screen(world.game);
  screen.appear();
  for (int i = 0; i < 30; ++i) screen.act({"year", "-1"});
  EXPECT_EQ(blockOf<EmptyHint>(screen.view()).text, "No records of 2023 are left");
}

TEST(YearInReview, IsDueInTheFirstWeekForAYearThatWasLived) {
  Years world;
  EXPECT_TRUE(isReviewDue(world.state));
  world.state.weekNumber = 2;
  EXPECT_FALSE(isReviewDue(world.state));
  setDate(world.state, 1);
  EXPECT_FALSE(isReviewDue(world.state)) << "before the beginning";
  setDate(world.state, 2 * 52 + 1);
  world.state.ageAtTakeover = 2025;
  EXPECT_FALSE(isReviewDue(world.state)) << "the year was somebody else's";
}

std::string textOf(const std::vector<Card>& cards, const std::string& title) {
  for (const Card& card : cards) {
    if (card.title == title) return card.text;
  }
  return "";
}

TEST(YearInReview, TellsFiveToSevenThingsOfTheYear) {
  Years world;
  GameState& state = world.state;
  std::vector<Card> cards = reviewOfYear(state, 2024).cards;
  EXPECT_EQ(cards.size(), 5u) << "an empty year fills up";
  EXPECT_EQ(textOf(cards, "The song"), "“Song 1” was the one they played the most: 70 plays.");
  EXPECT_EQ(textOf(cards, "The biggest week"), "In week 1 more of you was heard than in any other: 90 streams.");
  EXPECT_EQ(textOf(cards, "The money"), "Music and its stages brought in $8.")
      << "the best song of each week alone is paid";
  EXPECT_EQ(textOf(cards, "The heart"), "") << "five are enough";

  perform(state, 2024, 9, 2'500, 1);
  Festival festival = festivalIn(state, -20, "Meadow");
  festival.payment = 92;
  book(state, festival);
  Festival booked = festivalIn(state, 20, "Later");
  booked.yearNumber = 2024;
  book(state, booked);
  Matches partner = somebody(state, "Theo");
  partner.relationshipState = 1;
  partner.weekStartedDating = 53;  // the first week of 2024
  addMatch(state, partner);
  Award award = nominationFor(state, award_type::song, "Song 2");
  award.yearAwarded = 2024;
  award.isWinner = 1;
  state.saveAllMusicAwards.append(award);
  cards = reviewOfYear(state, 2024).cards;
  EXPECT_EQ(cards.size(), 6u) << "no album";
  EXPECT_EQ(textOf(cards, "The road"), "1 show, 1 sold out, for 2.5K people, and 1 festival.");
  EXPECT_EQ(textOf(cards, "The heart"), "You and Theo began something.");
  EXPECT_EQ(textOf(cards, "The money"), "Music and its stages brought in $600.");
  EXPECT_EQ(textOf(cards, "The honours"), "“Song 2” is Song of the Year.");
  Child adopted;
  adopted.birthYear = 2024;
  adopted.relationship = "Adopted Son";
  state.saveAllChildList.append(adopted);
  EXPECT_EQ(textOf(reviewOfYear(state, 2024).cards, "The heart"), "You and Theo began something.")
      << "whoever came later was born elsewhere";
  EXPECT_EQ(textOf(reviewOfYear(state, 2023).cards, "The road"), "You stayed at home, and so did the suitcases.");

  const Story story = reviewOfYear(state, 2024).story;
  EXPECT_EQ(story.kicker, "Ada · My year");
  EXPECT_EQ(story.figure, "2024");
  EXPECT_EQ(story.title, "Song 1");
  EXPECT_EQ(story.share, "backbeat-2024.png");
  EXPECT_EQ(story.facts.at(3).value, "1 of 1");
  EXPECT_EQ(story.facts.at(5).label, "Song 2");
}

}  // namespace
}  // namespace backbeat
