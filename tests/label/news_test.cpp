#include "label/news.h"

#include "label/builders.h"
#include "label/departments.h"
#include "label/signed_artist_output.h"
#include "music/chart.h"
#include "support/dates.h"
#include "support/world.h"

namespace backbeat {
namespace {

TEST(LabelNews, TellsOfTheFirstSigningInItsWeekAlone) {
  World world;
  foundLabel(world.state);
  setDate(world.state, 60);
  addSignedArtist(world.state, "Juno Hale", 40);
  std::vector<News> news;
  for (const int64_t week : {59, 60, 61}) {
    world.game.turn.before.absoluteWeek = week;
    addLabelNews(world.game, news);
    if (week == 60) addSignedArtist(world.state, "Lil Ember", 40);
  }
  ASSERT_EQ(news.size(), 1u);
  EXPECT_EQ(news[0].headline, "Juno Hale signed with you");
}

TEST(LabelNeeds, ALabelWithoutStaffOrArtistsAndUnhappyStaffWait) {
  World world;
  std::vector<Need> needs;
  addLabelNeeds(world.game, needs);
  EXPECT_TRUE(needs.empty()) << "without a label nobody waits";
  foundLabel(world.state);
  addLabelNeeds(world.game, needs);
  for (int i = 0; i < 3; ++i) addEmployee(world.state, department::sales, 40);
  addLabelNeeds(world.game, needs);
  ASSERT_EQ(needs.size(), 2u);
  EXPECT_EQ(needs[0].title, "Kite House has no staff");
  EXPECT_EQ(needs[1].title, "Nobody has signed with Kite House");
  addSignedArtist(world.state, "Juno Hale", 40);
  addLabelNeeds(world.game, needs);
  ASSERT_EQ(needs.size(), 2u) << "staff that is content waits for nothing";
  for (const size_t i : {0u, 2u}) {
    world.state.saveAllEmployeeList.update(i, [](Employee& employee) { employee.employeeMorale = 34.9; });
  }
  addLabelNeeds(world.game, needs);
  ASSERT_EQ(needs.size(), 3u);
  EXPECT_EQ(needs[2].title, "2 of your staff are unhappy");
}

TEST(LabelNeeds, WhatIsDueLeadsToTheOneOrToAll) {
  World world;
  foundLabel(world.state);
  setDate(world.state, 60);
  addEmployee(world.state, department::sales, 40);
  for (const char* name : {"Juno Hale", "Lil Ember", "Otto Marsh"}) addSignedArtist(world.state, name, 40);
  const auto change = [&](size_t i, void (*how)(SignedArtist&)) { world.state.saveAllSignedArtistList.update(i, how); };
  change(0, [](SignedArtist& artist) { artist.weeksToCompleteAlbum = 0; });
  change(1, [](SignedArtist& artist) {
    artist.weekEnd = 60;
    artist.weeksToCompleteAlbum = 0;
  });
  change(2, [](SignedArtist& artist) {
    artist.weekEnd = 60;
    artist.underContract = false;
  });
  std::vector<Need> needs;
  addLabelNeeds(world.game, needs);
  ASSERT_EQ(needs.size(), 2u);
  EXPECT_EQ(needs[0].title, "Lil Ember's contract is up");
  EXPECT_EQ(needs[0].argument, "2");
  EXPECT_EQ(needs[1].title, "Juno Hale's album is complete") << "the other's has to wait for the contract";
  change(2, [](SignedArtist& artist) { artist.underContract = true; });
  needs.clear();
  addLabelNeeds(world.game, needs);
  EXPECT_EQ(needs[0].title, "2 contracts are up");
  EXPECT_EQ(needs[0].subtitle, "Their albums rest until you renew them");
  EXPECT_EQ(needs[0].segue, "goToSignedArtists");
}

/// The news of a week in which an artist streamed so much, by their keys.
std::vector<std::string> newsOfWeek(World& world) {
  setDate(world.state, world.state.weekNumberForTracking);
  world.game.turn.before.absoluteWeek = world.state.weekNumberForTracking;
  world.game.turn.before.week = {world.state.weekNumber, world.state.yearNumber};
  openWeeklyChart(world.game);
  simulateSignedArtistStreams(world.game);
  settleBillboardRanks(world.game);
  setDate(world.state, world.state.weekNumberForTracking + 1);
  std::vector<News> news;
  addLabelNews(world.game, news);
  std::vector<std::string> keys;
  for (const News& each : news) keys.push_back(each.key);
  return keys;
}

TEST(LabelNews, TellsOfTheChartOfSilenceAndOfContractsOnce) {
  using Keys = std::vector<std::string>;
  World world;
  GameState& state = world.state;
  foundLabel(state);
  setDate(state, 58);
  addSignedArtist(state, "Juno Hale", 40);
  addSignedArtist(state, "Lil Ember", 40);
  setDate(state, 60);
  addSignedAlbum(state, 1, 1, 3);
  addSignedAlbum(state, 1, 1, 2);
  const auto streams = [&](int64_t listeners) {
    state.saveAllSignedArtistList.update(0, [&](SignedArtist& juno) { juno.monthlyListeners = listeners; });
    for (const size_t i : {0u, 1u}) {
      state.saveAllSignedArtistSongList.update(i, [&](SignedArtistSong& song) {
        song.viralityScore = i == 0 ? 100 : 0;
        song.marketingScore = 1;
      });
    }
    world.random.integerIs(10'000'000, 15'000'000, 10'000'000);
  };
  state.saveAllSignedArtistList.update(1, [](SignedArtist& ember) { ember.weekEnd = 63; });
  streams(5'000'000);  // 24.3 times the listeners, by three hundredths
  EXPECT_EQ(newsOfWeek(world), Keys{"label chart entry"});
  streams(20'000'000);
  EXPECT_EQ(newsOfWeek(world), Keys{"label number one"});
  streams(20'000'000);
  EXPECT_EQ(newsOfWeek(world), (Keys{"label silence", "contract up"})) << "the second of her songs was the shorter";
  world.random.integerIs(10'000'000, 15'000'000, 10'000'000);
  EXPECT_EQ(newsOfWeek(world), Keys{}) << "her row stays where it was on the chart";
}

}  // namespace
}  // namespace backbeat
