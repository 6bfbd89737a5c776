#include "label/artist_week.h"

#include "label/builders.h"
#include "label/departments.h"
#include "support/dates.h"
#include "support/world.h"

namespace backbeat {
namespace {

TEST(ArtistWeek, GrowsDriftsAndComesNearerToAnAlbum) {
  World world;
  GameState& state = world.state;
  setDate(state, 200);
  foundLabel(state);
  addEmployee(state, department::artistsAndRepertoire, 60);  // content at 75
  state.labelArtistHappinessBonus = 0.5;
  addSignedArtist(state, "Juno Hale", 50);
  addSignedArtist(state, "Lil Ember", 1);
  addSignedArtist(state, "Gone Girl", 40);
  state.saveAllSignedArtistList.update(0, [](SignedArtist& juno) { juno.vocals = 110; });
  state.saveAllSignedArtistList.update(1, [](SignedArtist& ember) {
    ember.weekEnd = 200;
    ember.happiness = 52;
  });
  state.saveAllSignedArtistList.update(2, [](SignedArtist& gone) { gone.underContract = false; });
  world.settle();
  world.random.doubleIs(1, 1'000, 100).doubleIs(0.1, 0.5, 0.25).integerIs(0, 200, 50).integerIs(0, 5, 4);
  world.random.integerIs(0, 1, 1);
  world.random.integerIs(0, 200, 50).integerIs(0, 5, 0).integerIs(0, 2, 2);
  updateSignedArtistsWeekly(world.game);

  const RecordList<SignedArtist>& artists = state.saveAllSignedArtistList;
  EXPECT_EQ(artists[0].monthlyListeners, 1'000'173) << "a hundred, times the root of three";
  EXPECT_EQ(artists[0].weeksToCompleteAlbum, 39);
  EXPECT_DOUBLE_EQ(artists[0].happiness, 90.75);
  EXPECT_EQ(artists[0].vocals, 110) << "no trait grows past it";
  EXPECT_EQ(artists[1].monthlyListeners, 20'000) << "the contract is up";
  EXPECT_EQ(artists[1].weeksToCompleteAlbum, 40);
  EXPECT_DOUBLE_EQ(artists[1].happiness, 49) << "and no bonus comforts";
  EXPECT_EQ(artists[1].charisma, 0);
  EXPECT_DOUBLE_EQ(artists[2].happiness, 90);
}

TEST(ArtistWeek, TheMoodFollowsTheScouts) {
  struct Case {
    int64_t staff;
    int64_t artists;
    double morale;
    int64_t originalRating;
    double change;  ///< or, where one is drawn, its bounds
    double least = 0, most = 0;
  };
  for (const Case& each : {Case{3, 9, 50, 69, 0, 0.1, 0.5}, Case{3, 9, 50, 70, 0, 0.5, 1.0}, Case{3, 10, 90, 69, -2},
                           Case{3, 10, 90, 70, -3}, Case{0, 1, 0, 40, -2}, Case{3, 9, 30, 90, -2}}) {
    World world;
    GameState& state = world.state;
    foundLabel(state);
    for (int64_t i = 0; i < each.staff; ++i) {
      addEmployee(state, department::artistsAndRepertoire, 60);
      state.saveAllEmployeeList.update(static_cast<size_t>(i),
                                       [&](Employee& scout) { scout.employeeMorale = each.morale; });
    }
    for (int64_t i = 0; i < each.artists; ++i) {
      addSignedArtist(state, "Artist", each.originalRating);
      state.saveAllSignedArtistList.update(static_cast<size_t>(i), [](SignedArtist& one) { one.happiness = 70; });
      world.random.doubleIs(1, each.originalRating > 50 ? 10'000 : 1'000, 1);
      if (each.most > 0) world.random.doubleIs(each.least, each.most, each.most);
      world.random.integerIs(0, 200, 0).integerIs(0, 5, 0);
    }
    world.settle();
    updateSignedArtistsWeekly(world.game);
    EXPECT_DOUBLE_EQ(state.saveAllSignedArtistList[0].happiness, 70 + each.change - each.most) << each.artists;
  }
}

TEST(ArtistWeek, HappinessStaysInItsBoundsAndNothingDriftsBetweenTheBands) {
  struct Case {
    double before;
    double bonus;
    double after;
  };
  for (const Case& each : {Case{124, 4, 125}, Case{82, 0, 80}, Case{52, 0, 50}, Case{1, 0, 0}}) {
    World world;
    foundLabel(world.state);
    addSignedArtist(world.state, "Juno Hale", 40);
    world.state.labelArtistHappinessBonus = each.bonus;
    world.state.saveAllSignedArtistList.update(0, [&](SignedArtist& one) { one.happiness = each.before; });
    world.settle();
    world.random.doubleIs(1, 1'000, 1).integerIs(0, 200, 50).integerIs(0, 5, 5);
    if (each.after > 80) world.random.integerIs(0, 1, 0);
    if (each.after < 50) world.random.integerIs(0, 2, 0);
    updateSignedArtistsWeekly(world.game);
    EXPECT_DOUBLE_EQ(world.state.saveAllSignedArtistList[0].happiness, each.after);
  }
}

TEST(ListenerGrowth, StepsWithTheListenersAndIsMultipliedByTalent) {
  struct Case {
    int64_t listeners;
    double most;
  };
  for (const Case& each :
       {Case{0, 5}, Case{100, 5}, Case{101, 10}, Case{10'001, 50}, Case{10'002, 100}, Case{1'000'000'000, 200'000},
        Case{6'000'000'000, 500'000}, Case{6'000'000'001, 14}, Case{-1, 14}}) {
    World world;
    world.random.doubleIs(1, each.most, 4.5);
    EXPECT_EQ(listenerGrowth(world.random, each.listeners, 0), 4);
    world.random.doubleIs(1, each.most, 3.5);
    EXPECT_EQ(listenerGrowth(world.random, each.listeners, 100), 10);
  }
}

}  // namespace
}  // namespace backbeat
