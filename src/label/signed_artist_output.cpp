#include "label/signed_artist_output.h"

#include <algorithm>
#include <cmath>

#include "core/numbers.h"
#include "label/accounts.h"
#include "label/roster.h"
#include "music/album_sales.h"
#include "music/chart.h"
#include "music/streaming.h"

namespace backbeat {

namespace {

// Where the player's own music meets luck, the label's has fixed numbers: intended.
constexpr double songViralityBase = 3;
constexpr double songViralitySpread = 20;
constexpr double songMarketingLoss = 2;
constexpr double songViralityLoss = 6;
constexpr double albumViralityBase = 2;
constexpr double albumViralitySpread = 25;
constexpr double albumMarketingLoss = 4;
constexpr double damper = 10;
constexpr double lifeScale = 10'000;
constexpr double residualShare = 0.5;
constexpr double fewestStreamsRecorded = 2;
constexpr double fewestUnitsRecorded = 1;
constexpr double greatestWeek = 500'000'000;
constexpr double leastGreatWeek = 400'000'000;
constexpr double shareOfListenersThatBuy = 0.18;
constexpr double shareOfReachThatBuys = 0.09;
/// A mean over eight songs, however many there are, so that a longer album lasts longer: intended.
constexpr double songShare = 0.125;
/// Dollars a unit; the label's albums do not know what the player's cost to make.
constexpr double costOfGoods = 2.99;
/// Nothing comes near it by itself; what is out of a file may have centuries to grow.
constexpr double most = 1e12;

double listenersOf(const GameState& state, int64_t artistId) {
  const size_t position = artistPosition(state, artistId);
  if (position == state.saveAllSignedArtistList.size()) return 0;
  return static_cast<double>(state.saveAllSignedArtistList[position].monthlyListeners);
}

/// Cut to a tenth of a cent.
double labelsShare(const GameState& state, const SignedArtistSong& song, double streams) {
  // The rate of today, not the one that the song came out with: intended.
  return std::trunc(streams * state.labelStreamingRate * song.percentageOfEarnings * 1000) / 1000;
}

void record(GameState& state, const SignedArtistSong& song, double streams) {
  SignedArtistWeeklySongListens week;
  week.songId = song.songId;
  week.artistId = song.artistId;
  week.albumId = song.albumId;
  week.songTitle = song.title;
  week.songListens = truncate(streams);
  week.weekNumber = state.weekNumber;
  week.yearNumber = state.yearNumber;
  week.totalStreamRevenue = labelsShare(state, song, streams);
  state.saveAllSignedArtistWeeklySongListens.append(std::move(week));
}

double launchStreams(Game& game, const SignedArtistSong& song) {
  const double multiplier = power(songViralityBase, song.viralityScore / songViralitySpread);
  const double reach = static_cast<double>(marketingReachFor(truncate(song.marketingScore)));
  const double audience = listenersOf(game.state, song.artistId) + reach;
  const double streams = multiplier / damper * audience * (song.productionRating / 100);
  if (streams > greatestWeek) return game.random.uniformDouble(leastGreatWeek, greatestWeek);
  return std::max(streams, -most);
}

void launchWeek(Game& game, size_t position) {
  RecordList<SignedArtistSong>& songs = game.state.saveAllSignedArtistSongList;
  const double streams = launchStreams(game, songs[position]);
  const int64_t count = truncate(streams);
  const int64_t ranking = chartedRank(game, songs[position], signedArtistSongOffset, count);
  record(game.state, songs[position], streams);
  songs.update(position, [&](SignedArtistSong& song) {
    song.chartRanking = ranking;
    song.totalListen = add(song.totalListen, count);
    song.marketingScore = std::max(song.marketingScore - songMarketingLoss, 0.0);
    song.viralityScore = std::max(song.viralityScore - songViralityLoss, 0.0);
  });
}

void residualWeek(Game& game, size_t position, double life) {
  RecordList<SignedArtistSong>& songs = game.state.saveAllSignedArtistSongList;
  const double total = static_cast<double>(songs[position].totalListen);
  const double streams = std::min(life / lifeScale * total * residualShare, most - total);
  const int64_t count = truncate(streams);
  const int64_t ranking = chartedRank(game, songs[position], signedArtistSongOffset, count);
  if (streams >= fewestStreamsRecorded) record(game.state, songs[position], streams);
  if (count == 0 && ranking == songs[position].chartRanking) return;
  songs.update(position, [&](SignedArtistSong& song) {
    song.totalListen = add(song.totalListen, count);
    song.chartRanking = ranking;
  });
}

/// What the songs of an album come to, those that have decayed as they stand.
struct AlbumSongs {
  double base = 0;
  double virality = 0;
};

AlbumSongs songsOf(const GameState& state, const SignedArtistAlbum& album) {
  double ratings = 0;
  double virality = 0;
  for (const uint32_t position : state.saveAllSignedArtistSongList.historyOf(album.albumId)) {
    ratings += state.saveAllSignedArtistSongList[position].productionRating;
    virality += state.saveAllSignedArtistSongList[position].viralityScore;
  }
  return {ratings * songShare, virality * songShare};
}

double lifeOf(const GameState& state, const SignedArtistAlbum& album, const AlbumSongs& songs) {
  return songs.base - static_cast<double>(state.weekNumberForTracking - album.releaseWeek);
}

void record(GameState& state, const SignedArtistAlbum& album, int64_t sold) {
  const double units = static_cast<double>(sold);
  SignedArtistWeeklyAlbumSales week;
  week.albumId = album.albumId;
  week.artistId = album.artistId;
  week.albumTitle = album.title;
  week.albumSales = sold;
  week.albumRevenue = std::round(album.percentageOfEarnings * (album.price * units - units * costOfGoods));
  week.weekNumber = state.weekNumber;
  week.yearNumber = state.yearNumber;
  state.saveAllSignedArtistWeeklyAlbumSales.append(std::move(week));
}

void addUnits(SignedArtistAlbum& album, int64_t sold) {
  album.albumsSold = add(album.albumsSold, sold);
  album.albumAward = std::max(album.albumAward, albumAwardTierFor(album.albumsSold));
}

void launchAlbumWeek(Game& game, size_t position, const AlbumSongs& songs) {
  GameState& state = game.state;
  const SignedArtistAlbum& album = state.saveAllSignedArtistAlbumList[position];
  const double multiplier = power(albumViralityBase, songs.virality / albumViralitySpread);
  const double reach = static_cast<double>(albumMarketingReachFor(truncate(album.marketingScore)));
  const double audience = multiplier / damper *
                          (listenersOf(state, album.artistId) * shareOfListenersThatBuy + reach * shareOfReachThatBuys);
  const double units = priceFactorFor(game.random, album.price) * ((songs.base / 100) * audience);
  const int64_t sold = truncate(std::clamp(units, -most, most));
  record(state, album, sold);
  state.saveAllSignedArtistAlbumList.update(position, [&](SignedArtistAlbum& changed) {
    addUnits(changed, sold);
    changed.marketingScore = std::max(changed.marketingScore - albumMarketingLoss, 0.0);
  });
}

void residualAlbumWeek(Game& game, size_t position, double life) {
  GameState& state = game.state;
  const SignedArtistAlbum& album = state.saveAllSignedArtistAlbumList[position];
  const double total = static_cast<double>(album.albumsSold);
  const double units = std::min(total * (life / lifeScale) * residualShare, most - total);
  const int64_t sold = truncate(units);
  if (units >= fewestUnitsRecorded) record(state, album, sold);
  if (sold == 0) return;
  state.saveAllSignedArtistAlbumList.update(position, [&](SignedArtistAlbum& changed) { addUnits(changed, sold); });
}

}  // namespace

double remainingLife(const GameState& state, const SignedArtistSong& song) {
  return song.productionRating - static_cast<double>(state.weekNumberForTracking - song.releaseWeek);
}

bool isSilent(const GameState& state, const SignedArtistSong& song) {
  return song.isReleased && !(remainingLife(state, song) > 0);
}

bool isSilent(const GameState& state, const SignedArtistAlbum& album) {
  return album.isReleased && !(lifeOf(state, album, songsOf(state, album)) > 0);
}

void letSilentArtistsSleep(GameState& state) {
  const auto isSilentNow = [&](const auto& work) { return isSilent(state, work); };
  state.saveAllSignedArtistSongList.letSleep(isSilentNow);
  state.saveAllSignedArtistAlbumList.letSleep(isSilentNow);
}

void simulateSignedArtistStreams(Game& game) {
  const GameState& state = game.state;
  const RecordList<SignedArtistSong>& songs = state.saveAllSignedArtistSongList;
  for (const uint32_t i : songs.awake()) {
    const double life = remainingLife(state, songs[i]);
    // A song that dies on the chart keeps its row there: it is skipped before the chart step, on purpose.
    if (!songs[i].isReleased || !(life > 0)) continue;
    if (songs[i].marketingScore > 0) {
      launchWeek(game, i);
    } else if (songs[i].marketingScore == 0) {
      residualWeek(game, i, life);
    }
  }
  game.save(&GameState::saveAllSignedArtistSongList, &GameState::saveAllSignedArtistWeeklySongListens,
            &GameState::saveAllBillboardSongList);
}

void simulateSignedArtistAlbumSales(Game& game) {
  const GameState& state = game.state;
  const RecordList<SignedArtistAlbum>& albums = state.saveAllSignedArtistAlbumList;
  for (const uint32_t i : albums.awake()) {
    const AlbumSongs songs = songsOf(state, albums[i]);
    const double life = lifeOf(state, albums[i], songs);
    if (!albums[i].isReleased || !(life > 0)) continue;
    if (albums[i].marketingScore > 0) {
      launchAlbumWeek(game, i, songs);
    } else if (albums[i].marketingScore == 0) {
      residualAlbumWeek(game, i, life);
    }
  }
  game.save(&GameState::saveAllSignedArtistWeeklyAlbumSales, &GameState::saveAllSignedArtistAlbumList);
  labelSums(game);  // so that no screen has to sum the years
}

}  // namespace backbeat
