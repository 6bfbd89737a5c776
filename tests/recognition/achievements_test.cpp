#include "recognition/achievements.h"

#include <algorithm>
#include <set>

#include "core/view_find.h"
#include "live/builders.h"
#include "music/builders.h"
#include "recognition/achievement_grant.h"
#include "recognition/award_fields.h"
#include "recognition/builders.h"
#include "recognition/screens/achievements_view_controller.h"
#include "support/dates.h"
#include "support/world.h"
#include "wealth/builders.h"

namespace backbeat {
namespace {

/// Goals that the same way leads to, each from its amount on. What either is or is not has 1.
struct Ladder {
  std::vector<std::pair<int64_t, int64_t>> rungs;  ///< id and amount
  void (*go)(GameState& state, int64_t far);       ///< takes a fresh career so far
};

template <class T, class Change>
void add(RecordList<T>& list, Change change) {
  T record;
  change(record);
  list.append(std::move(record));
}

/// Songs of so many plays, explicit or not, all on album 3.
void addSongs(GameState& state, int64_t count, int64_t plays, bool isExplicit = false) {
  for (int64_t i = 0; i < count; ++i) {
    Song song = releasedSong(state.songId += 3, "Song");
    song.albumId = 3;
    song.totalListen = plays;
    song.isExplicit = isExplicit ? 1 : 0;
    state.saveAllSongList.append(std::move(song));
  }
}

void addRow(GameState& state, int64_t songId, int64_t rank, int64_t weeks, int64_t weeksAtOne) {
  add(state.saveAllBillboardSongList, [&](BillboardSong& row) {
    row.songId = songId;
    row.isOnCharts = true;
    row.rankThisWeek = rank;
    row.weeksOnChart = weeks;
    row.weeksAtOne = weeksAtOne;
    row.peakPosition = weeksAtOne > 0 ? 1 : 2;
  });
}

constexpr int64_t ofTheLabel = 1'000'000;

/// A quarter of a company, bought for a million.
void addStake(GameState& state, int64_t hasExited, int64_t valuation) {
  add(state.saveAllVentureInvestments, [&](Venture& venture) {
    venture.hasExited = hasExited;
    venture.lastValuation = valuation;
    venture.totalOutstandingShares = 400;
    venture.totalSharesOwned = 100;
    venture.investmentAmount = 1'000'000;
  });
}

template <int64_t wanted>
void exitAs(GameState& state, int64_t far) {
  for (int64_t kind = 0; kind <= 4; ++kind) addStake(state, far == 0 && kind == wanted ? 0 : kind, 10);
}

void addFestival(GameState& state, int64_t festivalId, int64_t isHeadliner, int64_t audience, int64_t weeksAgo = 1) {
  setDate(state, 100);
  Festival festival = festivalIn(state, -weeksAgo, "Meadow");
  festival.festivalId = festivalId;
  festival.isHeadliner = isHeadliner;
  festival.audience = audience;
  book(state, festival);
}

/// Short of it: in the general lineup there, at the top elsewhere, and booked for the top.
template <int64_t festivalId>
void headline(GameState& state, int64_t far) {
  addFestival(state, festivalId, far, 10);
  addFestival(state, 2, 1, 10);
  addFestival(state, festivalId, 1, 10, 0);
}

void addAward(GameState& state, int64_t typeOfAward, int64_t year, int64_t isWinner) {
  Award award = nominationFor(state, typeOfAward, "Work");
  award.yearAwarded = year;
  award.isWinner = isWinner;
  state.saveAllMusicAwards.append(award);
}

template <int64_t typeOfAward>
void win(GameState& state, int64_t far) {
  for (const int64_t type : {0, 1, 2, 4, 5}) addAward(state, type, 2030, type == typeOfAward ? far : 1);
}

/// Two fields in one year and the third in the next; then in the same.
template <int64_t isWinner>
void sweep(GameState& state, int64_t far) {
  addAward(state, award_type::record, 2030, isWinner);
  addAward(state, award_type::album, 2030, isWinner);
  addAward(state, award_type::genreSong, 2030, isWinner);
  addAward(state, award_type::song, far == 3 ? 2030 : 2031, isWinner);
}

/// A week short of the next year, and over now.
void stayTogether(GameState& state, int64_t years) {
  add(state.saveAllMatchesList, [&](Matches& match) {
    match.relationshipState = -1;
    match.weekStartedDating = 100;
    match.weekEndedDating = 100 + 52 * years + 51;
  });
}

void addChildren(GameState& state, int64_t count, int64_t partners, const char* relationship) {
  for (int64_t i = 0; i < count; ++i) {
    add(state.saveAllChildList, [&](Child& child) {
      child.partnerName = i < partners ? "Partner " + std::to_string(i) : "";
      child.relationship = relationship;
    });
  }
}

const Ladder ladders[] = {
    {{{150, 1'000'000}, {151, 10'000'000}, {152, 100'000'000}, {153, 1'000'000'000}, {154, 10'000'000'000}},
     [](GameState& state, int64_t far) { state.totalCashAvailable = static_cast<double>(far); }},
    {{{155, 7'020}}, [](GameState& state, int64_t id) { ownVehicle(state, id, state.yearNumber); }},
    {{{156, 100'000'000}, {157, 1'000'000'000}}, [](GameState& state, int64_t far) { addStake(state, 4, far); }},
    {{{158, 1}}, exitAs<2>},
    {{{159, 1}}, exitAs<3>},
    {{{160, 1}}, exitAs<1>},
    {{{178, 1'000'000}, {179, 100'000'000}},
     [](GameState& state, int64_t gain) {
       addStake(state, 1, (gain + 1'000'000) * 4);
       addStake(state, 4, 90'000'000'000);  // sold in private
     }},
    {{{171, 1'000},
      {172, 10'000},
      {173, 100'000},
      {174, 1'000'000},
      {175, 10'000'000},
      {176, 100'000'000},
      {177, 1'000'000'000}},
     [](GameState& state, int64_t far) { state.totalFans = far; }},
    {{{119, 1'000'000}, {120, 10'000'000}, {121, 100'000'000}, {122, 1'000'000'000}, {123, 10'000'000'000}},
     [](GameState& state, int64_t far) { addSongs(state, 1, far); }},
    {{{124, 11}}, [](GameState& state, int64_t far) { addSongs(state, far, 1'000'000'000); }},
    {{{125, 1}},
     [](GameState& state, int64_t far) {
       addRow(state, 12, 1, 4 - far, 3);
       addRow(state, ofTheLabel, 1, 2, 2);
     }},
    {{{126, 10}},
     [](GameState& state, int64_t far) {
       for (int64_t rank = 1; rank <= 10; ++rank) addRow(state, 11 + rank, rank, rank <= far ? 1 : 2, 0);
     }},
    {{{127, 10}},
     [](GameState& state, int64_t far) {
       addRow(state, 12, 1, 80, far);
       addRow(state, ofTheLabel, 1, 80, 80);
     }},
    {{{128, 52}},
     [](GameState& state, int64_t far) {
       addRow(state, 12, 9, far, 0);
       addRow(state, ofTheLabel, 9, 80, 0);
     }},
    {{{129, 1}},
     [](GameState& state, int64_t far) {
       addSongs(state, 1, 5, true);
       addRow(state, state.songId, 1, 9, far);
       addSongs(state, 1, 5);
       addRow(state, state.songId, 1, 9, 9);
     }},
    {{{98, 100'000}, {99, 1'000'000}, {100, 10'000'000}},
     [](GameState& state, int64_t far) { state.youVideoSubscriberCount = far; }},
    {{{101, 1'000'000}, {102, 10'000'000}, {103, 100'000'000}, {104, 1'000'000'000}, {105, 10'000'000'000}},
     [](GameState& state, int64_t far) {
       add(state.saveAllMusicVideoList, [&](MusicVideo& video) { video.totalViews = far; });
     }},
    {{{113, 125'000}, {114, 250'000}, {115, 500'000}, {116, 1'000'000}, {117, 10'000'000}, {118, 50'000'000}},
     [](GameState& state, int64_t far) {
       state.saveAllAlbumList.append(releasedAlbum(3, "Night Maps"));
       state.saveAllAlbumList.update(0, [&](Album& album) { album.albumsSold = far; });
     }},
    {{{130, 100}}, [](GameState& state, int64_t far) { addSongs(state, far, 0, true); }},
    {{{131, 1}},
     [](GameState& state, int64_t far) {
       state.saveAllAlbumList.append(releasedAlbum(3, "Night Maps"));
       state.saveAllAlbumList.append(releasedAlbum(6, "Without a song left"));
       addSongs(state, 2, 0, true);
       addSongs(state, 1 - far, 0, false);
     }},
    {{{132, 16}},
     [](GameState& state, int64_t far) {
       setDate(state, 100);
       for (int64_t genre = 0; genre < 16; ++genre) addSongOfYear(state, "Song", 50, genre);
       if (far < 16) state.saveAllSongList.update(7, [](Song& song) { song.isReleased = false; });
     }},
    {{{133, 1}}, win<award_type::song>},
    {{{134, 1}}, win<award_type::album>},
    {{{135, 1}}, win<award_type::record>},
    {{{136, 3}}, sweep<0>},
    {{{137, 3}}, sweep<1>},
    {{{106, 1'000'000}, {107, 100'000'000}, {108, 1'000'000'000}},
     [](GameState& state, int64_t far) {
       add(state.saveAllFeaturedOnList, [&](FeaturedOn& verse) { verse.totalListen = far; });
     }},
    {{{138, 100}, {139, 1'000}},
     [](GameState& state, int64_t far) {
       for (int64_t i = 0; i < far + 5; ++i) {
         add(state.saveAllWeeklyTourSales, [&](WeeklyTourSales& show) { show.soldOut = i < far ? 1 : 0; });
       }
     }},
    {{{204, 30}}, [](GameState& state, int64_t far) { state.rejectionCount = far; }},
    {{{213, 30}}, [](GameState& state, int64_t far) { state.matchId = far; }},
    {{{214, 50}}, [](GameState& state, int64_t far) { state.slideIntoDmsCount = far; }},
    {{{309, 25}, {310, 50}, {311, 75}}, stayTogether},
    {{{312, 11}}, [](GameState& state, int64_t far) { addChildren(state, far, 6, "Daughter"); }},
    {{{312, 6}}, [](GameState& state, int64_t partners) { addChildren(state, 11, partners, "Daughter"); }},
    {{{216, 3}, {217, 5}},
     [](GameState& state, int64_t far) {
       addChildren(state, far, 0, "Adopted Son");
       addChildren(state, 9, 0, "Abandoned");
     }},
    {{{411, 1}}, headline<31>},
    {{{410, 1}}, headline<25>},
    {{{409, 1}}, headline<6>},
    {{{408, 1}}, [](GameState& state, int64_t far) { addFestival(state, 2, 1, 10, far); }},
    {{{406, 1}}, [](GameState& state, int64_t far) { addFestival(state, 2, 1 - far, 10); }},
    {{{402, 50'000}, {403, 100'000}, {404, 500'000}, {405, 1'000'000}},
     [](GameState& state, int64_t far) { addFestival(state, 2, 1, far); }},
};

bool isReached(const Ladder& ladder, int64_t id, int64_t far) {
  World world;
  ladder.go(world.state, far);
  world.settle();
  completeReached(world.game);
  return isCompleted(world.state, id);
}

TEST(Achievements, AreEachReachedAtTheirEdge) {
  std::set<int64_t> measured;
  for (const Ladder& ladder : ladders) {
    for (const auto& [id, amount] : ladder.rungs) {
      SCOPED_TRACE(std::to_string(id) + " at " + std::to_string(amount));
      EXPECT_FALSE(isReached(ladder, id, amount - 1));
      EXPECT_TRUE(isReached(ladder, id, amount));
      measured.insert(id);
    }
  }
  std::set<int64_t> granted;
  for (const Achievement& goal : achievements()) {
    if (!measured.contains(goal.id)) granted.insert(goal.id);
    EXPECT_EQ(measured.contains(goal.id), goal.measure != nullptr) << goal.title;
  }
  EXPECT_EQ(granted, (std::set<int64_t>{206, 207, 208, 209, 211, 307}));
  EXPECT_EQ(measured.size() + granted.size(), 82u);
}

TEST(Achievements, AreLookedForWhenTheirScreenOpensInOneOrderAndOnceForAll) {
  World world;
  GameState& state = world.state;
  addFestival(state, 2, 1, 10);
  state.rejectionCount = 30;
  addSongs(state, 1, 10'000'000);
  state.totalFans = 1'000;
  state.totalCashAvailable = -5;
  world.settle();
  EXPECT_EQ(goalsToCollect(world.game), 5) << "they wait until somebody looks";
  AchievementsViewController screen(world.game);
  EXPECT_EQ(screen.appear().feedback, Feedback::success);
  EXPECT_EQ(goalsToCollect(world.game), 0);
  EXPECT_EQ(state.AllCompletedAchievements, (std::vector<int64_t>{171, 119, 120, 204, 408}));
  EXPECT_EQ(blocksOf<Card>(screen.view()).size(), 3u);
  EXPECT_EQ(blockOf<Text>(screen.view()).text, "and 2 more");
  world.expectSaved();

  state.totalFans = 0;
  state.rejectionCount = 31;
  EXPECT_EQ(screen.appear().feedback, Feedback::none) << "what is reached is celebrated once, and stays";
  EXPECT_EQ(blocksOf<Card>(screen.view()).size(), 1u) << "the latest";
  EXPECT_EQ(screen.view().subtitle, "Achieved 5 of 82");
  world.settle();
}

TEST(Achievements, ThatMayPassAreToldInTheirWeekAndNoLonger) {
  World world;
  GameState& state = world.state;
  EXPECT_EQ(goalsToCollect(world.game), 0);
  state.weekNumberForTracking += 1;
  state.totalFans = 1'000;
  state.rejectionCount = 30;
  BillboardSong row;
  row.songId = 3;
  row.weeksAtOne = row.weeksOnChart = 1;
  state.saveAllBillboardSongList.append(row);
  EXPECT_EQ(goalsToCollect(world.game), 2) << "what stays reached waits for the long look";
  state.totalFans = 999;
  EXPECT_EQ(goalsToCollect(world.game), 1);
  state.weekNumberForTracking += 1;
  state.saveAllBillboardSongList.update(0, [](BillboardSong& falls) { falls.weeksOnChart += 1; });
  EXPECT_EQ(goalsToCollect(world.game), 0);
  state.weekNumberForTracking += 2;
  EXPECT_EQ(goalsToCollect(world.game), 1);
  world.settle();
}

TEST(Achievements, TellHowFarTheOpenOnesAre) {
  World world;
  world.state.totalCashAvailable = 4'200'000;
  world.state.saveAllAlbumList.append(releasedAlbum(3, "Night Maps"));
  world.state.AllCompletedAchievements = {150};
  AchievementsViewController screen(world.game);
  screen.appear();
  const View view = screen.view();
  EXPECT_EQ(rowTitled(view, "Eight Figures").value, "$4.2M");
  EXPECT_EQ(rowTitled(view, "Eight Figures").note, "of $10M");
  EXPECT_EQ(rowTitled(view, "Eight Figures").share, 0.42);
  EXPECT_EQ(rowTitled(view, "Eight Figures").subtitle, "Have a net worth of $10,000,000");
  EXPECT_TRUE(rowTitled(view, "The Club").selected && rowTitled(view, "The Club").value.empty());
  EXPECT_EQ(rowTitled(view, "Now You See Me").value, "") << "there is no half of a bomber";
  EXPECT_EQ(rowTitled(view, "Perfect Ten").note, "");
  EXPECT_EQ(gaugeLabelled(view, "Wealth and holdings").value, "1 of 20");
}

TEST(Achievements, GrantedInThePressAreToldOnce) {
  World world;
  world.settle();
  grantAchievement(world.game, achievement::hipThrust);
  grantAchievement(world.game, achievement::hipThrust);
  grantAchievement(world.game, achievement::openHeart);
  EXPECT_EQ(world.state.AllCompletedAchievements, (std::vector<int64_t>{207, 211}));
  const Outcome told = tellGrantedAchievements(world.game);
  ASSERT_EQ(told.alerts.size(), 2u);
  EXPECT_EQ(told.alerts[0].message, "\nHips at Work\n\nYour partner hip thrusts while being serenaded");
  EXPECT_TRUE(tellGrantedAchievements(world.game).alerts.empty());
}

}  // namespace
}  // namespace backbeat
