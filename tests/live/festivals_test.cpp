#include "live/festivals.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "live/builders.h"
#include "live/festival_invitation.h"
#include "live/festival_locations.h"
#include "music/builders.h"
#include "music/genres.h"
#include "support/dates.h"
#include "support/world.h"

namespace backbeat {
namespace {

struct FestivalWorld : World {
  explicit FestivalWorld(int64_t fans, int64_t skill) {
    setDate(state, 50);
    state.myArtistsName = "Mara Voss";
    state.totalFans = fans;
    for (int64_t* one : {&state.rhythm, &state.charisma, &state.vocalRange, &state.songWriting, &state.virality}) {
      *one = skill;
    }
  }
  /// Given names and nicknames in turn.
  void expectActs() {
    for (int i = 0; i < 19; ++i) {
      random.integerIs(0, 1, i % 2);
      if (i % 2 == 0) random.integerIs(0, 107, 0).integerIs(0, 62, 3);  // the family name that is empty
      if (i % 2 == 1) random.integerIs(0, 26, 1).integerIs(0, 48, 9);
    }
  }
};

TEST(Festivals, AHeadlinerIsBookedAndReviewed) {
  FestivalWorld world(75'000, 90);
  Song weak = releasedSong(1, "Weak");
  weak.productionRating = 60;
  Song strong = releasedSong(2, "Strong");
  strong.productionRating = 90;
  world.state.saveAllSongList.append(weak);
  world.state.saveAllSongList.append(strong);
  world.state.saveAllSongList.append(songInProduction(3, "Not Out"));
  world.settle();
  world.random.integerIs(1, 6, 4).integerIs(0, 5, 5);
  world.expectActs();
  world.random.doubleIs(0, 100, 40).integerIs(4, 10, 6);
  const FestivalInvitation invitation = drawFestivalInvitation(world.game);
  EXPECT_EQ(invitation.saveName, "Day N Vegas");
  EXPECT_TRUE(invitation.saveCanHeadline);
  EXPECT_EQ(invitation.saveHeadliner, "Mara Voss");
  EXPECT_EQ(invitation.acts.size(), actsOfBill);
  EXPECT_EQ(actsOf(invitation.saveLineup), invitation.acts);
  EXPECT_EQ(invitation.acts[1], "Addison");
  EXPECT_EQ(invitation.acts[2], "Young Smoke");
  EXPECT_DOUBLE_EQ(invitation.savePayment, 75'000 * 3 * 0.4);
  EXPECT_EQ(invitation.festivalWeekNumber, 4);
  EXPECT_EQ(invitation.festivalYear, 2024);
  EXPECT_EQ(invitation.festivalWeekForTracking, 56);

  EXPECT_EQ(acceptFestival(world.game, invitation).alerts.at(0).title, "🎼 Set List 🎼");
  for (const int64_t songId : {1, 2, 3}) toggleSetListSong(world.game, songId);
  EXPECT_TRUE(acceptFestival(world.game, invitation).done());
  EXPECT_EQ(world.state.saveAllFestivalList[0].setListId, (std::vector<int64_t>{1, 2}));
  world.expectSaved();
  world.state.saveAllSongList.eraseIf([](const Song& song) { return song.songId == 1; });  // cleared away since
  world.settle();
  world.random.integerIs(0, 5, 2);
  reviewFestival(world.game, {4, 2024});
  reviewFestival(world.game, {4, 2024});  // the papers write once
  EXPECT_DOUBLE_EQ(world.state.saveAllFestivalList[0].reviewStars, 90);
  EXPECT_EQ(starText(world.state.saveAllFestivalList[0]), "★★★★");
}

TEST(Festivals, TheUnknownPlayNearby) {
  FestivalWorld world(39'999, 5);
  world.state.festivalId = 6;
  world.random.integerIs(12, 16, 16).integerIs(0, 6, 1).integerIs(0, 6, 3).integerIs(1, 100, 80).doubleIs(10, 25, 11);
  world.expectActs();
  world.random.integerIs(4, 10, 10);
  const FestivalInvitation invitation = drawFestivalInvitation(world.game);
  EXPECT_EQ(invitation.saveName, "Groove");
  EXPECT_EQ(invitation.location, "San Francisco, California");
  EXPECT_EQ(invitation.saveAudience, 4'000);
  EXPECT_EQ(invitation.acts[15], "Mara Voss");
  EXPECT_EQ(invitation.saveHeadliner, "Addison");
  EXPECT_DOUBLE_EQ(invitation.savePayment, 4'000 * 3 * 0.0125);
  world.game.launch.festivalSetList = {1};
  acceptFestival(world.game, invitation);
  EXPECT_EQ(world.state.saveAllFestivalList[0].festivalId, 1'007);
}

TEST(Festivals, TheTopSlotIsHardToWin) {
  FestivalWorld world(40'000, 120);
  world.random.integerIs(1, 4, 1).integerIs(0, 1, 0);
  world.expectActs();
  world.random.doubleIs(0, 100, 29.9).integerIs(4, 10, 4);
  const FestivalInvitation invitation = drawFestivalInvitation(world.game);
  EXPECT_FALSE(invitation.saveCanHeadline);
  EXPECT_DOUBLE_EQ(invitation.savePayment, 40'000 * 3 * 0.1667);
}

TEST(Festivals, AWeekHasOneFestival) {
  World world;
  setDate(world.state, 120);
  book(world.state, festivalIn(world.state, 6, "Later"));
  book(world.state, festivalIn(world.state, 0, "First"));
  book(world.state, festivalIn(world.state, 0, "Second"));
  book(world.state, festivalIn(world.state, 4, "Soon"));
  world.settle();
  const CalendarWeek now{world.state.weekNumber, world.state.yearNumber};
  EXPECT_EQ(festivalOfWeek(world.state, now), 1u);
  world.random.integerIs(0, 5, 0);
  reviewFestival(world.game, now);
  EXPECT_EQ(festivalStars(world.state.saveAllFestivalList[1].reviewStars), 1);  // nothing of its set is left
  EXPECT_FALSE(reviewed(world.state.saveAllFestivalList[2]));
  EXPECT_EQ(festivalOfWeek(world.state, {now.week + 6, now.year}), 0u);
  EXPECT_EQ(festivalOfWeek(world.state, {now.week + 5, now.year}), 4u);
}

TEST(Festivals, TheirTableHoldsTogether) {
  int64_t audience = 0;
  for (const FestivalLocation& festival : festivalLocations) {
    EXPECT_GE(festival.audience, audience) << festival.name;  // an invitation takes those up to a size
    audience = festival.audience;
    for (const std::string_view genre : festival.genres) {
      EXPECT_TRUE(genre.empty() || std::find(genres.begin(), genres.end(), genre) != genres.end()) << genre;
    }
    EXPECT_FALSE(festival.genres[1].empty()) << festival.name;
  }
  EXPECT_EQ(dayOfWeek({1, 2023}), "January 1");
  EXPECT_EQ(dayOfWeek({29, 2023}), "July 16");
  EXPECT_EQ(dayOfWeek({29, 2024}), "July 15");
  EXPECT_EQ(dayOfWeek({52, 2023}), "December 24");
}

}  // namespace
}  // namespace backbeat
