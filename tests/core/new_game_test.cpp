#include "core/new_game.h"

#include <gtest/gtest.h>

#include <set>

#include "support/world.h"

namespace backbeat {
namespace {

void enrich(int64_t& value) { value = 7; }
void enrich(double& value) { value = 7.5; }
void enrich(std::string& value) { value = "rich"; }
void enrich(std::vector<int64_t>& value) { value = {7}; }
void enrich(std::map<std::string, std::string>& value) { value["rich"] = "rich"; }

/// A life in which every scalar and every list holds something.
void enrich(GameState& state) {
  for (const Scalar& scalar : scalars) std::visit([&](auto member) { enrich(state.*member); }, scalar.member);
  forEachField<GameState>([&](const auto& field) {
    auto& list = state.*field.member;
    list.append(std::decay_t<decltype(list[0])>());
  });
}

std::set<std::string> keysThatDiffer(const GameState& a, const GameState& b) {
  std::set<std::string> keys;
  for (const Scalar& scalar : scalars) {
    std::visit(
        [&](auto member) {
          if (a.*member != b.*member) keys.emplace(scalar.key);
        },
        scalar.member);
  }
  const auto listsOfB = listsOf(b);
  for (const auto& [key, list] : listsOf(a)) {
    const auto same =
        std::find_if(listsOfB.begin(), listsOfB.end(), [&](const auto& other) { return other.key == key; });
    if (!list.holdsSame(same->list)) keys.emplace(key);
  }
  return keys;
}

/// What outlives every artist.
const std::set<std::string> outlives = {
    // Bought energy.
    "permanentEnergyUpgrade",
    // What the shop was told to forget, and while that energy is there the mark of packs.
    "creditedPurchases", "assisted",
    // What was ever reached.
    "AllCompletedAchievements", "totalFanHighScore", "mostPopularSongHighScore", "mostSuccessfulLabelHighScore",
    "mostPopularAlbumHighScore", "longestBillBoardHitHighScore", "mostNumberOneHighScore", "highestGrossAlbumWeekly",
    "mostGramWins", "mostAchievementsCompleted", "userRank", "userScore", "saveAllLegacyList",
    // First uses and habits.
    "loginCount", "savePulse", "assignFollowers", "assignSubscribers", "didSubscribe", "rejectionCount",
    "slideIntoDmsCount", "saveGenreForNextTime", "appearance",
    // Names, texts and pictures of the player's making.
    "AllFeaturedArtists", "AllCelebrityCameos", "featureArtistNamedChanges", "celebrityCameoNamedChanges",
    "moreInfoDescription", "twitterProfileImage", "twitterHeaderImage", "saveRingImage"};

std::set<std::string> with(std::set<std::string> keys, const std::set<std::string>& more) {
  keys.insert(more.begin(), more.end());
  return keys;
}

TEST(NewGame, AnHeirGoesOnInTheSameYearAndHasAName) {
  World world;
  enrich(world.state);
  world.settle();
  endLives(world.game, Lifetime::artist);
  EXPECT_EQ(keysThatDiffer(world.state, GameState()),
            with(outlives, {"weekNumber", "yearNumber", "weekNumberForTracking", "promptToEnterName", "heirParentNames",
                            "careerId", "packWeeks"}));
  world.expectSaved();
}

TEST(NewGame, RestartLeavesOnlyWhatOutlivesEveryArtist) {
  World world;
  enrich(world.state);
  world.settle();
  world.game.launch.contractOfferState = 2;
  world.game.launch.selectedFeaturedArtists = {3};
  world.game.launch.leaderboardPassDone = true;
  world.game.launch.musicScreenLoaded = true;

  restartGame(world.game);

  EXPECT_EQ(keysThatDiffer(world.state, GameState()), with(outlives, {"totalEnergyMax", "totalEnergyAvailable"}))
      << "bought energy comes on top";
  EXPECT_EQ(world.state.totalEnergyMax, 107);
  EXPECT_EQ(world.state.totalEnergyAvailable, 107);
  EXPECT_EQ(world.game.launch.contractOfferState, 0);
  EXPECT_TRUE(world.game.launch.selectedFeaturedArtists.empty());
  EXPECT_TRUE(world.game.launch.leaderboardPassDone && world.game.launch.musicScreenLoaded);
  world.expectSaved();
  GameState loaded;
  SaveFile(world.store).load(loaded);
  EXPECT_EQ(loaded.myArtistsName, "") << "no key is removed: the empty name is what is stored";
  EXPECT_EQ(loaded.permanentEnergyUpgrade, 7);
}

}  // namespace
}  // namespace backbeat
