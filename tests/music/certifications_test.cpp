#include "music/certifications.h"

#include <gtest/gtest.h>

#include "core/own_photo.h"
#include "music/builders.h"
#include "music/milestones.h"
#include "music/screens/statistics.h"
#include "support/world.h"

namespace backbeat {
namespace {

TEST(Certifications, SongsAtTheOddThresholds) {
  EXPECT_EQ(songCertificationTier(18'750'149), 0);
  EXPECT_EQ(songCertificationTier(18'750'150), 1);
  EXPECT_EQ(songCertificationTier(1'500'000'149), 4);
  EXPECT_EQ(songCertificationTier(1'500'000'150), 5);
  EXPECT_EQ(nextSongCertification(18'750'150), 37'500'150);
  EXPECT_EQ(nextSongCertification(1'500'000'150), std::nullopt);
}

TEST(Certifications, CountReleasedSongsAndAllAlbumsButSingle) {
  World world;
  Album album = releasedAlbum(0, "Single");
  album.albumAward = 3;
  world.state.saveAllAlbumList.append(album);
  for (const int64_t award : {5, 5, 2, 0, 9, -1}) {
    album.albumId += 3;
    album.albumAward = award;
    album.isReleased = award != 0;
    world.state.saveAllAlbumList.append(album);
  }
  Song song = releasedSong(12, "Hit");
  song.totalListen = 80'000'000;
  world.state.saveAllSongList.append(song);
  world.state.saveAllSongList.append(songInProduction(15, "Draft"));
  const CertificationCounts counts = countCertifications(world.state);
  EXPECT_EQ(counts.diamondAlbums, 2);
  EXPECT_EQ(counts.silverAlbums, 1);
  EXPECT_EQ(counts.goldAlbums, 0);
  EXPECT_EQ(counts.blackAlbums, 3) << "any award outside 1 to 5 is black, and so is one in production";
  EXPECT_EQ(counts.goldSongs, 1);
  EXPECT_EQ(counts.blackSongs, 0);
}

/// Weeks 1, 2, ... of 2023 with these counts.
void addStreams(World& world, int64_t songId, std::initializer_list<int64_t> counts) {
  WeeklySongListens week;
  week.songId = songId;
  week.yearNumber = 2023;
  for (const int64_t count : counts) {
    week.weekNumber += 1;
    week.songListens = count;
    week.totalStreamRevenue = 1.5;
    week.songTitle = world.state.saveAllSongList[0].title;
    world.state.saveAllWeeklySongListens.append(week);
  }
}

TEST(Statistics, AreTheSongsOwnWeeks) {
  World world;
  world.state.saveAllSongList.append(releasedSong(12, "Mine"));
  addStreams(world, 12, {40, 90, 10});
  addStreams(world, 15, {1'000});
  const WeeklyFigures figures = songFigures(world.state, 12);
  EXPECT_EQ(figures.weeks, 3);
  EXPECT_EQ(figures.best, 90);
  EXPECT_EQ(figures.latest, 10);
  EXPECT_DOUBLE_EQ(figures.earned, 4.5);
  const Chart chart = streamsChart(world.state, world.state.saveAllSongList[0], 2);
  EXPECT_EQ(chart.points, (std::vector<double>{90, 10}));
  EXPECT_EQ(streamsTable(world.state, 12, 2).rows[0], (std::vector<std::string>{"3, 2023", "10", "$1.50"}));
}

std::vector<std::string> texts(const std::vector<Milestone>& milestones) {
  std::vector<std::string> lines;
  for (const Milestone& milestone : milestones) {
    lines.push_back(milestone.text + (milestone.amount.empty() ? "" : ": " + milestone.amount));
  }
  return lines;
}

TEST(Milestones, TellDebutPeakNumberOneAndCertification) {
  World world;
  for (const int64_t id : {12, 15, 18}) world.state.saveAllSongList.append(releasedSong(id, "S" + std::to_string(id)));
  Album album = releasedAlbum(7, "Blue Hour");
  world.state.saveAllAlbumList.append(album);
  BillboardSong row;
  row.isOnCharts = true;
  row.weeksOnChart = 2;
  for (const int64_t id : {15, 18}) {
    row.songId = id;
    row.songTitle = "S" + std::to_string(id);
    row.rankThisWeek = row.peakPosition = 30;
    world.state.saveAllBillboardSongList.append(row);
  }
  const MilestoneSnapshot before = milestoneSnapshot(world.game);
  EXPECT_TRUE(milestonesSince(before, world.state, {1, 2023}).empty()) << "nothing happened yet";

  row.songId = 12;
  row.songTitle = "S12";
  row.rankThisWeek = row.peakPosition = 44;
  world.state.saveAllBillboardSongList.append(row);
  row.songId = 1'000'012;  // a signed artist's
  world.state.saveAllBillboardSongList.append(row);
  world.state.saveAllBillboardSongList.update(0, [](BillboardSong& changed) { changed.peakPosition = 9; });
  world.state.saveAllBillboardSongList.update(1, [](BillboardSong& changed) {
    changed.peakPosition = 1;
    changed.weeksAtOne = 1;
  });
  world.state.saveAllSongList.update(0, [](Song& song) { song.totalListen = 80'000'000; });
  world.state.saveAllAlbumList.update(0, [](Album& changed) { changed.albumAward = 1; });
  const std::vector<Milestone> milestones = milestonesSince(before, world.state, {1, 2023});
  EXPECT_EQ(texts(milestones), (std::vector<std::string>{
                                   "“S18” is number one!", "“S12” is certified Gold", "“Blue Hour” is certified Bronze",
                                   "“S12” enters the chart at #44", "“S15” climbs to a new peak: #9"}));
  EXPECT_EQ(milestones[2].albumId, 7);
  EXPECT_EQ(milestones[2].songId, -1);
}

TEST(Milestones, ARecordNeedsThreeWeeksToBeatAndIsStrict) {
  World world;
  world.state.saveAllSongList.append(releasedSong(12, "Mine"));
  const MilestoneSnapshot before = milestoneSnapshot(world.game);
  addStreams(world, 12, {10, 20, 30, 30, 31});
  EXPECT_TRUE(milestonesSince(before, world.state, {9, 2023}).empty()) << "no row of that week";
  EXPECT_EQ(texts(milestonesSince(before, world.state, {5, 2023})),
            std::vector<std::string>{"“Mine” has its best week yet: 31 streams"});
  world.state.saveAllWeeklySongListens.erase(4);
  EXPECT_TRUE(milestonesSince(before, world.state, {4, 2023}).empty()) << "as good as the week before is no record";
  world.state.saveAllWeeklySongListens.erase(3);
  EXPECT_TRUE(milestonesSince(before, world.state, {3, 2023}).empty()) << "two weeks are nothing to beat";
}

TEST(OwnPhoto, OnlySmallPicturesAreKept) {
  const std::string jpeg = "data:image/jpeg;base64,";
  EXPECT_FALSE(photoRefusal(jpeg + "/9j/4AAQ+w=="));
  EXPECT_TRUE(photoRefusal(jpeg));
  EXPECT_TRUE(photoRefusal(jpeg + "ab\"onload=\"x"));
  EXPECT_TRUE(photoRefusal("data:image/svg+xml;base64,PHN2Zz4="));
  EXPECT_TRUE(photoRefusal("https://example.org/me.jpg"));
  EXPECT_FALSE(photoRefusal(jpeg + std::string(largestPhoto - jpeg.size(), 'A')));
  EXPECT_TRUE(photoRefusal(jpeg + std::string(largestPhoto - jpeg.size() + 1, 'A')));
}

}  // namespace
}  // namespace backbeat
