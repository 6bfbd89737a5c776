#include "video/channel.h"

#include <gtest/gtest.h>

#include <set>

#include "core/view_find.h"
#include "music/builders.h"
#include "support/world.h"
#include "video/builders.h"
#include "video/comment_pools.h"
#include "video/comments.h"
#include "video/screens/you_edit_description_view_controller.h"
#include "video/screens/you_video_view_controller.h"

namespace backbeat {
namespace {

TEST(Channel, SubscribersComeOnceFrom26ListenersOnAndTheOwnOneComesAndGoes) {
  World world;
  world.state.totalFans = 25;
  world.settle();
  YouVideoViewController(world.game).open();
  EXPECT_EQ(world.state.assignSubscribers, 0);
  world.state.totalFans = 26;
  world.game.save(&GameState::totalFans);
  world.random.doubleIs(0.3, 0.6, 0.6);
  YouVideoViewController screen(world.game);
  screen.open();
  screen.open();
  EXPECT_EQ(world.state.youVideoSubscriberCount, 15);
  screen.act({"subscribeButton", ""});
  EXPECT_EQ(world.state.youVideoSubscriberCount, 16);
  EXPECT_EQ(blockOf<Button>(screen.view()).label, "Subscribed");
  screen.act({"subscribeButton", ""});
  EXPECT_EQ(world.state.youVideoSubscriberCount, 15);
  EXPECT_EQ(world.state.didSubscribe, 0);
}

TEST(Channel, AgesAreToldInWeeksAndThenInMonthsOfFour) {
  World world;
  world.state.weekNumberForTracking = 100;
  const auto ageOf = [&](int64_t weeks) {
    MusicVideo video;
    video.weekForTracking = 100 - weeks;
    return videoAge(world.state, video);
  };
  EXPECT_EQ(ageOf(0), "this week");
  EXPECT_EQ(ageOf(1), "1 week ago");
  EXPECT_EQ(ageOf(7), "7 weeks ago");
  EXPECT_EQ(ageOf(8), "2 month(s) ago");
  EXPECT_EQ(ageOf(51), "12 month(s) ago");
}

TEST(Channel, TheNewestFilmLeadsAndTheOthersFollowByAgeOrByViews) {
  World world;
  world.state.weekNumberForTracking = 100;
  const std::pair<int64_t, int64_t> films[] = {{30, 5'000}, {2, 10}, {2, 700}, {90, 900'000}};
  for (const auto& [age, views] : films) {
    MusicVideo video = videoOf(world.state, 12 + age);
    video.totalViews = views;
    video.minutes = 245;
    video.styleOfVideo = 3;
    addVideo(world.state, video, age);
  }
  YouVideoViewController screen(world.game);
  const auto shown = [&] {
    std::vector<std::string> ids;
    for (const Row& row : rowsOf(screen.view())) {
      if (row.id.starts_with("video:")) ids.push_back(row.id.substr(6));
    }
    return ids;
  };
  EXPECT_EQ(shown(), (std::vector<std::string>{"5", "3", "1", "7"}));
  screen.act({"orderButton", ""});
  EXPECT_EQ(shown(), (std::vector<std::string>{"5", "7", "1", "3"}));
  const Row newest = rowsOf(screen.view())[0];
  EXPECT_EQ(newest.title, "Song No. 14 (Official Lyric Video)");
  EXPECT_EQ(newest.value, "4:05");
  EXPECT_TRUE(newest.actions.empty()) << "its song was cleared away";
}

TEST(Channel, ADescriptionTellsWhoPlaysWhoSingsAndWhereTheSongIsFrom) {
  World world;
  world.state.myArtistsName = "Mira";
  MusicVideo video = videoOf(world.state, 12);
  EXPECT_EQ(videoDescription(world.state, video), "“Song No. 12” by Mira.\nDirected by Joe Jackson.");
  video.songFeatures = {"", "Ann", "Bo", " Cy "};
  video.cameos = {"Ace", "Nadia"};
  video.albumId = 20;
  video.albumTitle = "First Light";
  video.director = "Directed by Mira";
  EXPECT_EQ(videoDescription(world.state, video),
            "“Song No. 12” by Mira (featuring Ann, Bo and Cy) from the album 'First Light'. Starring Ace and "
            "Nadia.\nDirected by Mira.");
}

TEST(Channel, ItsTextsAreCutAndTheFirstStandsOnTheProfileToo) {
  World world;
  world.state.aboutDescription = "Hello";
  world.settle();
  YouEditDescriptionViewController screen(world.game);
  screen.open();
  screen.act({"moreInfo", std::string(700, 'x')});
  EXPECT_EQ(world.state.moreInfoDescription, "") << "until it is saved";
  screen.act({"saveButton", ""});
  EXPECT_EQ(world.state.moreInfoDescription.size(), 600u);
  EXPECT_EQ(world.state.aboutDescription, "Hello");
}

template <class Pool>
bool holds(const Pool& pool, std::string_view text) {
  return std::find(pool.begin(), pool.end(), text) != pool.end();
}

TEST(VideoComments, FollowTheRatingAndStayForTheWeek) {
  GameState state;
  for (const double rating : {39.9, 40.0, 59.9, 60.0}) {
    SCOPED_TRACE(rating);
    std::set<size_t> counts;
    bool anyGood = false;
    bool anyBad = false;
    for (state.weekNumberForTracking = 1; state.weekNumberForTracking <= 200; ++state.weekNumberForTracking) {
      MusicVideo video = videoOf(state, 12);
      video.productionRating = rating;
      const std::vector<VideoComment> comments = commentsOn(state, video);
      std::set<std::string_view> texts;
      std::set<std::string_view> authors;
      for (const VideoComment& comment : comments) {
        texts.insert(comment.text);
        authors.insert(comment.author);
        anyGood = anyGood || holds(positiveComments, comment.text);
        anyBad = anyBad || holds(negativeComments, comment.text);
      }
      EXPECT_EQ(texts.size(), comments.size());
      EXPECT_EQ(authors.size(), comments.size());
      EXPECT_EQ(commentsOn(state, video).front().text, comments.front().text);
      counts.insert(comments.size());
    }
    EXPECT_EQ(anyGood, rating >= 60);
    EXPECT_EQ(anyBad, rating < 40);
    EXPECT_EQ(counts, (std::set<size_t>{3, 4, 5, 6, 7, 8}));
  }
}

TEST(VideoComments, NoLineStandsTwice) {
  std::set<std::string_view> seen;
  const auto take = [&](const auto& pool) {
    for (const std::string_view line : pool) EXPECT_TRUE(seen.insert(line).second) << line;
  };
  take(generalComments);
  take(positiveComments);
  take(negativeComments);
  take(commenters);
}

}  // namespace
}  // namespace backbeat
