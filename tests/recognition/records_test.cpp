#include "core/new_game.h"
#include "core/view_find.h"
#include "music/artist_name.h"
#include "music/builders.h"
#include "recognition/leaderboards.h"
#include "recognition/screens/records_view_controller.h"
#include "shell/native/file_places.h"
#include "shell/native/score_file.h"
#include "support/test_folder.h"
#include "support/world.h"

namespace backbeat {
namespace {

int64_t careerNamed(const std::string& name, double hour) {
  World world;
  world.clock.set({hour});
  world.settle();
  nameArtist(world.game, name);
  return world.state.careerId;
}

TEST(Careers, HaveANumberFromTheirNamePromptOn) {
  const int64_t number = careerNamed("Ada", 1'000);
  EXPECT_GT(number, 0);
  EXPECT_EQ(careerNamed("Ada", 1'000), number) << "a replay tells the same career";
  EXPECT_NE(careerNamed("Ada", 1'001), number);
  EXPECT_NE(careerNamed("Bo", 1'000), number);
  World world;
  world.settle();
  nameArtist(world.game, "Ada");
  const int64_t first = world.state.careerId;
  nameArtist(world.game, "Bo");
  EXPECT_EQ(world.state.careerId, first) << "another name is no other career";
  endLives(world.game, Lifetime::artist);
  EXPECT_EQ(world.state.careerId, first) << "an heir goes on with it";
  restartGame(world.game);
  world.clock.set({77});
  nameArtist(world.game, "Bo");
  EXPECT_NE(world.state.careerId, first);
  EXPECT_NE(world.state.careerId, 0);
}

TEST(Leaderboards, TellTheDeviceWhatEachLifeCameTo) {
  World world;
  GameState& state = world.state;
  state.myArtistsName = "Ada";
  state.weekNumber = 24;
  state.totalFans = 500;
  state.totalFanHighScore = 900;
  state.saveAllSongList.append(releasedSong(12, "Known"));
  state.saveAllSongList.update(0, [](Song& song) { song.totalListen = 70; });
  state.mostPopularSongHighScore = 4'000;
  state.isLabelLaunched = 1;
  state.totalRecordLabelCost = 25;
  state.mostSuccessfulLabelHighScore = 60;
  world.settle();
  submitLeaderboards(world.game);
  ASSERT_EQ(world.platform.table.lives().size(), 1u);
  const LifeScores first = world.platform.table.lives()[0];
  EXPECT_EQ(first.life.careerId, state.careerId);
  EXPECT_EQ(first.scores.at("MOSTPOPULARSONG"), 70) << "this life's own, whatever a forebear had";
  EXPECT_EQ(first.scores.at("BESTRECORDLABEL"), -25);
  EXPECT_EQ(state.mostSuccessfulLabelHighScore, 60) << "its report raises it";

  world.game.launch.leaderboardPassDone = false;
  state.ageAtTakeover = 2061;
  state.totalFans = 20;
  world.settle();
  submitLeaderboards(world.game);
  ASSERT_EQ(world.platform.table.lives().size(), 2u) << "an heir is another life";
  EXPECT_EQ(world.platform.table.lives()[1].scores.at("MONTHLYLISTENERS"), 20);
}

TEST(Records, SayWhatStandsWhoseItIsAndWhatBeatsIt) {
  World world;
  GameState& state = world.state;
  state.myArtistsName = "Ada";
  state.saveAllSongList.append(releasedSong(12, "Known"));
  state.saveAllSongList.update(0, [](Song& song) { song.totalListen = 4'000; });
  state.mostPopularSongHighScore = 4'000;
  state.totalFans = 250;
  state.totalFanHighScore = 999;
  world.platform.submitScore({7, 0, "Ada"}, {"MOSTPOPULARSONG", 4'000, 4'000});
  world.platform.submitScore({5, 2050, "Bo"}, {"MOSTPOPULARSONG", 9'000, 9'000});
  state.careerId = 7;
  world.settle();
  RecordsViewController screen(world.game);
  screen.appear();
  const Row song = rowTitled(screen.view(), "Most popular song");
  EXPECT_EQ(song.subtitle, "Known");
  EXPECT_EQ(song.value, "4,000");
  EXPECT_EQ(song.note, "to beat: 4,001");
  const Row fans = rowTitled(screen.view(), "Monthly listeners");
  EXPECT_EQ(fans.subtitle, "This life: 250") << "whose the record is, this life does not know";
  EXPECT_EQ(fans.share, 0.25);
  EXPECT_EQ(rowTitled(screen.view(), "GRAM wins").note, "no record yet");

  EXPECT_EQ(blockOf<EmptyHint>(screen.view()).icon, "podium") << "nobody was compared by listeners";
  screen.act({"compare", "1"});
  EXPECT_EQ(rowTitled(screen.view(), "#1 Bo").subtitle, "Took over in 2050");
  EXPECT_EQ(rowTitled(screen.view(), "#2 Ada").badge, "You");
}

TEST(ScoreTable, ComesBackAsItWasFromWhateverItsTextHas) {
  ScoreTable table;
  EXPECT_TRUE(table.take({7, 0, "Ada\nof the\ttwo lines"}, {"MOSTGRAMWINS", 3, 3}));
  EXPECT_FALSE(table.take({7, 0, "Ada\nof the\ttwo lines"}, {"MOSTGRAMWINS", 2, 3})) << "a score only rises";
  EXPECT_TRUE(table.take({7, 2040, "مريم 🎤"}, {"BESTRECORDLABEL", -12, 0}));
  const ScoreTable read(table.text());
  EXPECT_EQ(read.text(), table.text());
  ASSERT_EQ(read.lives().size(), 2u);
  EXPECT_EQ(read.lives()[0].life.artistName, "Ada of the two lines");
  EXPECT_EQ(read.lives()[1].scores.at("BESTRECORDLABEL"), -12);

  const ScoreTable harmed(
      "score MOSTGRAMWINS 9\nlife x 0 Nobody\nscore MOSTGRAMWINS 9\nlife 3 0 Cy\nscore A\n\xFF\xFE\n" +
      std::string("score B 4\nlife"));
  ASSERT_EQ(harmed.lives().size(), 1u);
  EXPECT_EQ(harmed.lives()[0].scores, (std::map<std::string, int64_t, std::less<>>{{"B", 4}}));

  for (int64_t career = 1; career <= 250; ++career) table.take({career, 0, ""}, {"MOSTGRAMWINS", career, 0});
  EXPECT_EQ(table.lives().size(), ScoreTable::mostLives);
  EXPECT_EQ(table.lives().back().life.careerId, 250);
}

TEST(ScoreFile, KeepsTheTableBesideTheSave) {
  const TestFolder folder;
  const std::string save = (folder.path / "career.backbeat").string();
  {
    ScoreFile scores(save);
    EXPECT_TRUE(scores.scoredLives().empty());
    scores.submitScore({7, 0, "Ada"}, {"MOSTGRAMWINS", 3, 3});
  }
  ScoreFile scores(save);
  ASSERT_EQ(scores.scoredLives().size(), 1u);
  scores.submitScore({7, 0, "Ada"}, {"MOSTGRAMWINS", 1, 3});
  EXPECT_EQ(ScoreFile(save).scoredLives()[0].scores.at("MOSTGRAMWINS"), 3);
}

}  // namespace
}  // namespace backbeat
