// The music of the world in which no two figures are equal: a song for each thing that a week can bring, and albums at
// each stage of their life.
#include "music/chart.h"
#include "music/figures.h"

namespace backbeat {

namespace {

/// A song with figures of its own, whose weeks up to now were these.
struct Made {
  int64_t songId;
  const char* title;
  double rating;
  int64_t totalListen;
  std::vector<std::string> guests = {};
  std::vector<int64_t> weeks = {};
  int64_t albumId = 0;
  const char* album = "Single";
  bool isReleased = true;
  int64_t age = 21;  ///< weeks since the release
};

void make(GameState& state, OwnValues& own, const Made& made) {
  Song song = own.record<Song>();
  song.songId = made.songId;
  song.title = made.title;
  song.album = made.album;
  song.albumId = made.albumId;
  song.isReleased = made.isReleased;
  song.releaseWeek = state.weekNumberForTracking - made.age;
  song.releaseYear = state.yearNumber - made.age / 52;
  song.productionRating = made.rating;
  song.totalListen = made.totalListen;
  song.features = {""};
  song.features.insert(song.features.end(), made.guests.begin(), made.guests.end());
  song.marketingScore = 0;
  song.chartRanking = 0;
  song.isExplicit = 0;
  song.viralityScore = 40.5 - static_cast<double>(made.songId) / 3;  // the first made is heard first
  song.percentageOfEarnings = 1 - static_cast<double>(made.songId) / 1'000;
  song.streamPayRate = static_cast<double>(made.songId) / 9'000;
  state.saveAllSongList.append(song);
}

void stream(GameState& state, OwnValues& own, const std::vector<Made>& songs) {
  for (int64_t ago = 3; ago > 0; --ago) {
    for (const Made& song : songs) {
      if (song.weeks.empty()) continue;
      WeeklySongListens week = own.record<WeeklySongListens>();
      week.songId = song.songId;
      week.songTitle = song.title;
      week.albumTitle = song.album;
      week.songListens = song.weeks[static_cast<size_t>(3 - ago)];
      week.weekNumber = state.weekNumber - ago;
      week.yearNumber = state.yearNumber;
      state.saveAllWeeklySongListens.append(week);
    }
  }
}

struct Pressed {
  int64_t albumId;
  const char* title;
  bool isReleased;
  int64_t songCount;
  int64_t albumsSold;
  int64_t tier;
  double price;
};

void press(GameState& state, OwnValues& own, const Pressed& made) {
  Album album = own.record<Album>();
  album.albumId = made.albumId;
  album.title = made.title;
  album.isReleased = made.isReleased;
  album.songCount = made.songCount;
  album.albumsSold = made.albumsSold;
  album.albumAward = made.tier;
  album.price = made.price;
  album.releaseWeek = state.weekNumberForTracking - made.albumId;
  album.releaseYear = state.yearNumber - made.albumId / 10;
  album.productionRating = 20.125 + static_cast<double>(made.albumId);
  album.marketingScore = 33.5 + static_cast<double>(made.albumId);
  album.percentageOfEarnings = 0.9 - static_cast<double>(made.albumId) / 100;
  state.saveAllAlbumList.append(album);
}

void sell(GameState& state, OwnValues& own) {
  int64_t sold = 40'009;
  for (int64_t ago = 3; ago > 0; --ago) {
    WeeklyAlbumSales week = own.record<WeeklyAlbumSales>();
    week.albumId = 20;
    week.albumTitle = "First Light";
    week.albumSales = sold -= 11'003;
    week.weekNumber = state.weekNumber - ago;
    week.yearNumber = state.yearNumber;
    state.saveAllWeeklyAlbumSales.append(week);
  }
}

struct Charted {
  int64_t songId;
  const char* title;
  int64_t rank;
  int64_t lastRank;
  int64_t peak;
  int64_t weeks;
  int64_t weeksAtOne;
  const char* guests = "";
  bool isOnCharts = true;
};

void chart(GameState& state, OwnValues& own, const Charted& charted) {
  BillboardSong row = own.record<BillboardSong>();
  row.songId = charted.songId;
  row.songTitle = charted.title;
  row.songFeature = charted.guests;
  row.rankThisWeek = charted.rank;
  row.rankLastWeek = charted.lastRank;
  row.peakPosition = charted.peak;
  row.weeksOnChart = charted.weeks;
  row.weeksAtOne = charted.weeksAtOne;
  row.yearDebut = state.yearNumber - charted.weeks / 16;
  row.isOnCharts = charted.isOnCharts;
  state.saveAllBillboardSongList.append(row);
  const size_t song = state.saveAllSongList.find([&](const Song& one) { return one.songId == charted.songId; });
  if (song == state.saveAllSongList.size() || !charted.isOnCharts) return;
  state.saveAllSongList.update(song, [&](Song& changed) { changed.chartRanking = charted.rank; });
}

void furnish(GameState& state, OwnValues& own) {
  state.totalFans = 26'543'210;
  state.followerCount = 8'765'432;
  state.monthlyListenerData = {19'111'333, 23'444'555, 26'543'210};
  state.saveGenreForNextTime = 3;
  state.contractFeatureDiscount = 0.83;
  const std::vector<Made> songs = {
      // The coming week makes it number one, with its only guest.
      {12, "Paper Boats", 71.25, 612'345'678, {"Ann Bright"}, {390'000'101, 395'000'202, 400'000'303}},
      {15,
       "Glass Harbour",
       87.5,
       41'222'333,
       {"Bo Crow", "Cy Dell"},
       {34'000'005, 32'000'006, 30'000'007},
       20,
       "First Light"},
      {18, "Low Tide", 12.75, 5'432'100, {}, {}, 20, "First Light", true, 1'200},
      {21, "Night Bus", 46.625, 0, {"Di Frost"}, {}, 23, "Second Wind", false},
      {24, "Fever Line", 66.375, 80'123'456, {"Ed Gray", "Flo Hart"}, {61'000'001, 60'500'002, 60'000'003}},
      {27, "Tin Roof", 58.875, 37'500'051, {}, {1'900'004, 1'850'005, 1'800'006}},
      {30, "Small Hours", 9.5, 654'321, {}, {1'101, 1'203, 1'307}, 0, "Single", true, 4},
  };
  for (const Made& song : songs) make(state, own, song);
  stream(state, own, songs);
  state.saveAllSongList.update(1, [](Song& song) { song.isExplicit = 1; });
  state.saveAllSongList.update(3, [](Song& song) {
    song.productionBoostCount = 5;
    song.viralityBoostCount = 8;
  });
  state.saveAllSongList.update(6, [](Song& song) { song.marketingScore = 55.5; });
  press(state, own, {20, "First Light", true, 2, 249'990, 1, 8.49});
  press(state, own, {23, "Second Wind", false, 2, 0, 0, 7.49});
  press(state, own, {26, "Old Coats", true, 7, 4'567'890, 3, 5.49});
  press(state, own, {29, "Third Rail", false, 11, 0, 0, 6.49});
  sell(state, own);
  chart(state, own, {15, "Glass Harbour", 61, 67, 55, 28, 0, "Bo Crow, Cy Dell"});
  chart(state, own, {18, "Low Tide", 1'018, 97, 13, 37, 0, "", false});
  chart(state, own, {signedArtistSongOffset + 5, "Rosewater", 42, 31, 26, 18, 0});
  chart(state, own, {featuredSongOffset + 8, "Borrowed Time", 83, 0, 81, 46, 6});
  SignedArtist artist = own.record<SignedArtist>();
  artist.name = "Nova Reed";
  artist.artistId = 7;
  artist.underContract = true;
  state.saveAllSignedArtistList.append(artist);
  SignedArtistSong signedSong = own.record<SignedArtistSong>();
  signedSong.songId = 5;
  signedSong.artistName = "Nova Reed";
  state.saveAllSignedArtistSongList.append(signedSong);
  FeaturedOn verse = own.record<FeaturedOn>();
  verse.songId = 8;
  verse.artistName = "Gil Ives";
  verse.title = "Borrowed Time";
  verse.features = {"", "Mara Voss"};
  verse.productionRating = 54.875;
  verse.viralityScore = 17.125;
  verse.marketingScore = 29.5;
  verse.percentageOfEarnings = 0.135;
  verse.chartRanking = 83;
  verse.releaseWeek = state.weekNumberForTracking - 1;
  state.saveAllFeaturedOnList.append(verse);
}

const FiguresOf world{.furnish = furnish};

}  // namespace

}  // namespace backbeat
