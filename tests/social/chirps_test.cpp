#include "social/chirps.h"

#include <gtest/gtest.h>

#include "core/view_find.h"
#include "music/builders.h"
#include "social/screens/create_twitter_message_view_controller.h"
#include "social/screens/twitter_profile_view_controller.h"
#include "support/world.h"

namespace backbeat {
namespace {

/// The counts of a post: likes, comments, re-chirps.
void drawCounts(World& world) {
  world.random.doubleIs(0.005, 0.02, 0.01).doubleIs(0.05, 0.2, 0.2).doubleIs(0.05, 0.2, 0.1);
}

Chirp chirpOf(int64_t id) {
  Chirp chirp;
  chirp.id = id;
  chirp.songId = -1;
  return chirp;
}

TEST(Followers, ComeOnceFrom26ListenersOn) {
  World world;
  world.settle();
  world.state.totalFans = 25;
  seedFollowers(world.game);
  EXPECT_EQ(world.state.assignFollowers, 0);
  world.state.totalFans = 26;
  world.game.save(&GameState::totalFans);
  world.random.doubleIs(0.3, 0.6, 0.6);
  seedFollowers(world.game);
  seedFollowers(world.game);
  EXPECT_EQ(world.state.followerCount, 15);
}

TEST(Chirps, APostCostsEnergyAndItsCountsComeFromUncutLikes) {
  World world;
  world.state.followerCount = 1'490;
  world.state.totalEnergyAvailable = 5;
  world.state.myArtistsName = "Mira";
  world.state.chirpId = 41;
  world.state.saveAllChirpList.append(chirpOf(41));
  world.clock.set({7'200});
  world.settle();
  EXPECT_EQ(postChirp(world.game, "").alerts.at(0).title, "🐥 Chirp Needed 🐥");
  drawCounts(world);
  postChirp(world.game, "Hello");
  const Chirp& chirp = world.state.saveAllChirpList[0];
  EXPECT_EQ(chirp.id, 42);
  EXPECT_EQ(chirp.artistName, "Mira");
  EXPECT_EQ(chirp.likeCount, 14);
  EXPECT_EQ(chirp.commentCount, 2);  // a fifth of 14.9
  EXPECT_EQ(chirp.reChirpCount, 1);
  EXPECT_EQ(chirp.songId, -1);
  EXPECT_EQ(chirpAge(chirp, {7'200 + 3'599}), "0h");
  EXPECT_EQ(chirpAge(chirp, {7'200 + 2 * 3'600}), "2h");
  EXPECT_EQ(world.state.totalEnergyAvailable, 0);
  EXPECT_EQ(postChirp(world.game, "Again").alerts.at(0).title, "⚡️ Not Enough Energy ⚡️");
  deleteChirp(world.game, 42);
  EXPECT_EQ(world.state.saveAllChirpList.size(), 1u);
  EXPECT_EQ(world.state.chirpId, 42) << "numbers are never given twice";
}

TEST(Chirps, AnAnnouncementLiftsItsSongOnceAndStaysUntilTheRelease) {
  World world;
  world.state.saveAllSongList.append(songInProduction(12, "Soon"));
  world.settle();
  CreateTwitterMessageViewController composer(world.game, 12);
  composer.open();
  drawCounts(world);
  EXPECT_TRUE(composer.act({"chirpButton", ""}).go.has_value());
  EXPECT_NE(world.state.saveAllChirpList[0].message.find("\"Soon\""), std::string::npos);
  EXPECT_DOUBLE_EQ(world.state.saveAllSongList[0].viralityScore, 6);
  EXPECT_TRUE(songAnnounced(world.state, 12));
  drawCounts(world);
  postChirp(world.game, "Again", 12);
  EXPECT_DOUBLE_EQ(world.state.saveAllSongList[0].viralityScore, 6);
  deleteChirp(world.game, 1);
  EXPECT_EQ(world.state.saveAllChirpList.size(), 2u);
  const std::vector<Post> posts = blocksOf<Post>(TwitterProfileViewController(world.game).view());
  EXPECT_EQ(posts[0].actions.size(), 2u);
  EXPECT_EQ(posts[1].actions.size(), 1u) << "the announcement cannot be deleted yet";
  world.expectSaved();
  world.state.saveAllSongList.update(0, [](Song& song) { song.isReleased = true; });
  world.settle();
  deleteChirp(world.game, 1);
  EXPECT_EQ(world.state.saveAllChirpList.size(), 1u);
}

TEST(Profile, ShowsThePinnedPostFirstAndSixtyAtATime) {
  World world;
  for (int64_t id = 102; id <= 171; ++id) world.state.saveAllChirpList.insertFront(chirpOf(id));
  world.settle();
  TwitterProfileViewController screen(world.game);
  screen.act({"pin:110", ""});
  screen.act({"pin:105", ""});
  screen.act({"pin:999", ""});
  std::vector<Post> posts = blocksOf<Post>(screen.view());
  ASSERT_EQ(posts.size(), 60u);
  EXPECT_EQ(posts[0].pinned, "    Pinned Chirp");
  EXPECT_EQ(posts[0].actions[0].id, "unpin:105") << "only the last pin counts";
  EXPECT_EQ(posts[1].actions[0].id, "pin:171");
  screen.act({"feed:60", ""});
  posts = blocksOf<Post>(screen.view());
  ASSERT_EQ(posts.size(), 10u);
  EXPECT_EQ(posts.back().actions[0].id, "pin:102");
  screen.act({"unpin:105", ""});
  screen.act({"feed:0", ""});
  EXPECT_EQ(blocksOf<Post>(screen.view())[0].pinned, "");
}

TEST(Profile, TheFollowButtonPulsesOnceInASave) {
  World world;
  world.state.totalFans = 100;
  world.settle();
  const auto pulses = [](const Screen& screen) { return blockOf<Button>(screen.view()).pulse; };
  world.random.doubleIs(0.3, 0.6, 0.5);
  TwitterProfileViewController screen(world.game);
  screen.appear();
  EXPECT_TRUE(pulses(screen));
  EXPECT_EQ(world.state.followerCount, 50);
  screen.appear();
  EXPECT_FALSE(pulses(screen));
  EXPECT_EQ(world.state.savePulse, 1);
}

}  // namespace
}  // namespace backbeat
