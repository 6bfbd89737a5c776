// Records of the music lists: how each looks in memory, and the table that says how it is stored.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "core/fields.h"
#include "core/record_list.h"

namespace backbeat {

/// One song of the player, from production to silence.
struct Song {
  int64_t songId = 0;                ///< unique id, from songId
  std::string title;                 ///< trimmed title, unique among songs ignoring case
  std::string album;                 ///< title of its album, or "Single"
  int64_t albumId = 0;               ///< album id; 0 for the built-in "Single" album
  bool isReleased = false;           ///< false while in production
  int64_t releaseWeek = 0;           ///< weekNumberForTracking at release
  int64_t releaseYear = 0;           ///< yearNumber at release
  double productionRating = 0;       ///< quality, nominally 0 to 100; also the weeks the song lives
  int64_t totalListen = 0;           ///< lifetime streams
  double viralityScore = 0;          ///< falls by 6 a week while the launch lasts
  int64_t productionBoostCount = 0;  ///< times boosted
  int64_t viralityBoostCount = 0;    ///< times boosted
  std::vector<std::string>
      features;               ///< featured artists; element 0 is always the empty string, so names begin at index 1
  double marketingScore = 0;  ///< above 0 the song is in its launch phase, at 0 in the residual one
  int64_t chartRanking = 0;   ///< rank on the chart, 0 when off it
  int64_t isExplicit = 0;     ///< 0 or 1
  int64_t songAward = 0;      ///< carried, never written: a song's level follows from its streams
  double streamPayRate = 0;   ///< dollars per stream, fixed at creation
  double percentageOfEarnings = 0;  ///< share of revenue kept, 1.0 without a contract

  friend bool operator==(const Song&, const Song&) = default;
};

template <>
inline constexpr auto fieldsOf<Song> = [](auto&& take) {
  return take(Field{"songId", &Song::songId}, Field{"title", &Song::title}, Field{"album", &Song::album},
              Field{"albumId", &Song::albumId}, Field{"isReleased", &Song::isReleased},
              Field{"releaseWeek", &Song::releaseWeek}, Field{"releaseYear", &Song::releaseYear},
              Field{"productionRating", &Song::productionRating}, Field{"totalListen", &Song::totalListen},
              Field{"viralityScore", &Song::viralityScore}, Field{"productionBoostCount", &Song::productionBoostCount},
              Field{"viralityBoostCount", &Song::viralityBoostCount}, Field{"features", &Song::features},
              Field{"marketingScore", &Song::marketingScore}, Field{"chartRanking", &Song::chartRanking},
              Field{"isExplicit", &Song::isExplicit}, Field{"songAward", &Song::songAward},
              Field{"streamPayRate", &Song::streamPayRate}, Field{"percentageOfEarnings", &Song::percentageOfEarnings});
};

/// A song is found by its id.
template <>
inline constexpr int64_t Song::*historyKeyOf<Song> = &Song::songId;

/// An album finds its songs.
template <>
inline constexpr int64_t Song::*groupKeyOf<Song> = &Song::albumId;

/// One album of the player; the built-in "Single" has id 0 and is never released.
struct Album {
  int64_t albumId = 0;  ///< 0 for the built-in "Single"
  std::string title;    ///< unique among albums
  bool isReleased = false;
  int64_t songCount = 0;        ///< songs on it
  int64_t albumAward = 0;       ///< certification tier 0 to 5
  double productionRating = 0;  ///< running mean of its songs at adding time
  int64_t albumsSold = 0;       ///< lifetime units
  int64_t releaseWeek = 0;      ///< weekNumberForTracking at release
  int64_t releaseYear = 0;
  int64_t chartRanking = 0;         ///< 1000 from creation on; albums have no chart
  double price = 0;                 ///< dollars per unit
  double marketingScore = 0;        ///< positive means launch phase, 0 residual
  double percentageOfEarnings = 0;  ///< share kept

  friend bool operator==(const Album&, const Album&) = default;
};

template <>
inline constexpr auto fieldsOf<Album> = [](auto&& take) {
  return take(Field{"albumId", &Album::albumId}, Field{"title", &Album::title}, Field{"isReleased", &Album::isReleased},
              Field{"songCount", &Album::songCount}, Field{"albumAward", &Album::albumAward},
              Field{"productionRating", &Album::productionRating}, Field{"albumsSold", &Album::albumsSold},
              Field{"releaseWeek", &Album::releaseWeek}, Field{"releaseYear", &Album::releaseYear},
              Field{"chartRanking", &Album::chartRanking}, Field{"price", &Album::price},
              Field{"marketingScore", &Album::marketingScore},
              Field{"percentageOfEarnings", &Album::percentageOfEarnings});
};

/// An album is found by its id.
template <>
inline constexpr int64_t Album::*historyKeyOf<Album> = &Album::albumId;

/// Which picture an album wears.
struct AlbumCover {
  int64_t albumId = 0;
  std::string imageString;

  friend bool operator==(const AlbumCover&, const AlbumCover&) = default;
};

template <>
inline constexpr auto fieldsOf<AlbumCover> = [](auto&& take) {
  return take(Field{"albumId", &AlbumCover::albumId}, Field{"imageString", &AlbumCover::imageString});
};

/// What one song streamed in one week, and the money that came of it.
struct WeeklySongListens {
  int64_t songId = 0;
  std::string songTitle;
  std::string albumTitle;
  int64_t songListens = 0;  ///< streams of that week
  int64_t weekNumber = 0;   ///< week of the year in which it was streamed
  int64_t yearNumber = 0;
  double totalStreamRevenue = 0;  ///< dollars, rounded to three decimals

  friend bool operator==(const WeeklySongListens&, const WeeklySongListens&) = default;
};

template <>
inline constexpr auto fieldsOf<WeeklySongListens> = [](auto&& take) {
  return take(Field{"songId", &WeeklySongListens::songId}, Field{"songTitle", &WeeklySongListens::songTitle},
              Field{"albumTitle", &WeeklySongListens::albumTitle},
              Field{"songListens", &WeeklySongListens::songListens},
              Field{"weekNumber", &WeeklySongListens::weekNumber}, Field{"yearNumber", &WeeklySongListens::yearNumber},
              Field{"totalStreamRevenue", &WeeklySongListens::totalStreamRevenue});
};

/// A song's weeks are looked up by its id, years back.
template <>
inline constexpr int64_t WeeklySongListens::*historyKeyOf<WeeklySongListens> = &WeeklySongListens::songId;

/// What one album sold in one week.
struct WeeklyAlbumSales {
  int64_t albumId = 0;
  std::string albumTitle;
  int64_t albumSales = 0;   ///< units of that week
  double albumRevenue = 0;  ///< dollars, rounded to whole dollars
  int64_t weekNumber = 0;
  int64_t yearNumber = 0;

  friend bool operator==(const WeeklyAlbumSales&, const WeeklyAlbumSales&) = default;
};

template <>
inline constexpr auto fieldsOf<WeeklyAlbumSales> = [](auto&& take) {
  return take(Field{"albumId", &WeeklyAlbumSales::albumId}, Field{"albumTitle", &WeeklyAlbumSales::albumTitle},
              Field{"albumSales", &WeeklyAlbumSales::albumSales},
              Field{"albumRevenue", &WeeklyAlbumSales::albumRevenue},
              Field{"weekNumber", &WeeklyAlbumSales::weekNumber}, Field{"yearNumber", &WeeklyAlbumSales::yearNumber});
};

/// An album's weeks are looked up by its id, years back.
template <>
inline constexpr int64_t WeeklyAlbumSales::*historyKeyOf<WeeklyAlbumSales> = &WeeklyAlbumSales::albumId;

/// One chart row; a song that ever charted keeps its row for good.
struct BillboardSong {
  int64_t songId = 0;  ///< below 1,000,000 the player's, to 9,999,999 a signed artist's, from 10,000,000 a guest verse
  std::string songTitle;          ///< trimmed
  std::string songFeature;        ///< names of the guests, or empty
  int64_t weeklySongListens = 0;  ///< streams of the latest charted week
  int64_t rankLastWeek = 0;       ///< 0 at the debut
  int64_t rankThisWeek = 0;       ///< 1 is best; songId + 1000 marks a row off the chart
  int64_t weeksOnChart = 0;       ///< weeks charted, from 1
  int64_t peakPosition = 0;       ///< best rank
  int64_t yearDebut = 0;
  int64_t yearCurrent = 0;  ///< year of the latest charted week
  int64_t weekNumber = 0;   ///< absolute week of the debut
  bool isOnCharts = false;  ///< stays false when a song that left comes back
  int64_t weeksAtOne = 0;   ///< weeks spent at number one

  friend bool operator==(const BillboardSong&, const BillboardSong&) = default;
};

template <>
inline constexpr auto fieldsOf<BillboardSong> = [](auto&& take) {
  return take(Field{"songId", &BillboardSong::songId}, Field{"songTitle", &BillboardSong::songTitle},
              Field{"songFeature", &BillboardSong::songFeature},
              Field{"weeklySongListens", &BillboardSong::weeklySongListens},
              Field{"rankLastWeek", &BillboardSong::rankLastWeek}, Field{"rankThisWeek", &BillboardSong::rankThisWeek},
              Field{"weeksOnChart", &BillboardSong::weeksOnChart}, Field{"peakPosition", &BillboardSong::peakPosition},
              Field{"yearDebut", &BillboardSong::yearDebut}, Field{"yearCurrent", &BillboardSong::yearCurrent},
              Field{"weekNumber", &BillboardSong::weekNumber}, Field{"isOnCharts", &BillboardSong::isOnCharts},
              Field{"weeksAtOne", &BillboardSong::weeksAtOne});
};

/// A song finds its chart row by its id, however many hits there were.
template <>
inline constexpr int64_t BillboardSong::*historyKeyOf<BillboardSong> = &BillboardSong::songId;

/// One music video of the player.
struct MusicVideo {
  int64_t videoId = 0;
  int64_t songId = 0;
  std::string songTitle;
  std::vector<std::string> songFeatures;
  std::vector<std::string> cameos;
  int64_t albumId = 0;
  std::string albumTitle;
  int64_t year = 0;             ///< yearNumber at creation
  int64_t weekForTracking = 0;  ///< weekNumberForTracking at release
  int64_t styleOfVideo = 0;     ///< index of the style
  int64_t totalViews = 0;
  double viralityScore = 0;
  double productionRating = 0;
  double marketingScore = 0;
  std::string director;
  double viewBonus = 0;  ///< multiplier on views
  double streamPayRate = 0;
  double percentageOfEarnings = 0;
  int64_t minutes = 0;  ///< length
  bool isReleased = false;
  int64_t likes = 0;
  int64_t comments = 0;
  std::string featuredComment;
  int64_t chartRanking = 0;
  int64_t isLiked = 0;
  double productionCost = 0;  ///< dollars

  friend bool operator==(const MusicVideo&, const MusicVideo&) = default;
};

template <>
inline constexpr auto fieldsOf<MusicVideo> = [](auto&& take) {
  return take(Field{"videoId", &MusicVideo::videoId}, Field{"songId", &MusicVideo::songId},
              Field{"songTitle", &MusicVideo::songTitle}, Field{"songFeatures", &MusicVideo::songFeatures},
              Field{"cameos", &MusicVideo::cameos}, Field{"albumId", &MusicVideo::albumId},
              Field{"albumTitle", &MusicVideo::albumTitle}, Field{"year", &MusicVideo::year},
              Field{"weekForTracking", &MusicVideo::weekForTracking}, Field{"styleOfVideo", &MusicVideo::styleOfVideo},
              Field{"totalViews", &MusicVideo::totalViews}, Field{"viralityScore", &MusicVideo::viralityScore},
              Field{"productionRating", &MusicVideo::productionRating},
              Field{"marketingScore", &MusicVideo::marketingScore}, Field{"director", &MusicVideo::director},
              Field{"viewBonus", &MusicVideo::viewBonus}, Field{"streamPayRate", &MusicVideo::streamPayRate},
              Field{"percentageOfEarnings", &MusicVideo::percentageOfEarnings}, Field{"minutes", &MusicVideo::minutes},
              Field{"isReleased", &MusicVideo::isReleased}, Field{"likes", &MusicVideo::likes},
              Field{"comments", &MusicVideo::comments}, Field{"featuredComment", &MusicVideo::featuredComment},
              Field{"chartRanking", &MusicVideo::chartRanking}, Field{"isLiked", &MusicVideo::isLiked},
              Field{"productionCost", &MusicVideo::productionCost});
};

/// A song finds its video by its id.
template <>
inline constexpr int64_t MusicVideo::*historyKeyOf<MusicVideo> = &MusicVideo::songId;

/// What one video was viewed in one week.
struct WeeklyVideoViews {
  int64_t videoId = 0;
  int64_t songId = 0;
  std::string songTitle;
  std::string albumTitle;
  int64_t videoViews = 0;  ///< views of that week
  int64_t weekNumber = 0;
  int64_t yearNumber = 0;
  double totalViewRevenue = 0;  ///< dollars

  friend bool operator==(const WeeklyVideoViews&, const WeeklyVideoViews&) = default;
};

template <>
inline constexpr auto fieldsOf<WeeklyVideoViews> = [](auto&& take) {
  return take(Field{"videoId", &WeeklyVideoViews::videoId}, Field{"songId", &WeeklyVideoViews::songId},
              Field{"songTitle", &WeeklyVideoViews::songTitle}, Field{"albumTitle", &WeeklyVideoViews::albumTitle},
              Field{"videoViews", &WeeklyVideoViews::videoViews}, Field{"weekNumber", &WeeklyVideoViews::weekNumber},
              Field{"yearNumber", &WeeklyVideoViews::yearNumber},
              Field{"totalViewRevenue", &WeeklyVideoViews::totalViewRevenue});
};

template <>
inline constexpr int64_t WeeklyVideoViews::*historyKeyOf<WeeklyVideoViews> = &WeeklyVideoViews::videoId;

/// The genre a song was made in; songs themselves do not carry it.
struct SongGenre {
  int64_t songId = 0;
  int64_t genreNumber = 0;  ///< 0 to 15, see music/genres.h

  friend bool operator==(const SongGenre&, const SongGenre&) = default;
};

template <>
inline constexpr auto fieldsOf<SongGenre> = [](auto&& take) {
  return take(Field{"songId", &SongGenre::songId}, Field{"genreNumber", &SongGenre::genreNumber});
};

/// A star who can be hired for a verse.
struct FeaturedArtist {
  int64_t id = 0;    ///< below 50
  std::string name;  ///< the player may change it
  double virality = 0;
  double rating = 0;
  int64_t cost = 0;           ///< dollars
  int64_t minimumRating = 0;  ///< the skill the artist needs to be heard by them

  friend bool operator==(const FeaturedArtist&, const FeaturedArtist&) = default;
};

template <>
inline constexpr auto fieldsOf<FeaturedArtist> = [](auto&& take) {
  return take(Field{"id", &FeaturedArtist::id}, Field{"name", &FeaturedArtist::name},
              Field{"virality", &FeaturedArtist::virality}, Field{"rating", &FeaturedArtist::rating},
              Field{"cost", &FeaturedArtist::cost}, Field{"minimumRating", &FeaturedArtist::minimumRating});
};

/// A face who can be hired for a video.
struct CelebrityCameo {
  int64_t id = 0;    ///< below 50
  std::string name;  ///< the player may change it
  double virality = 0;
  double rating = 0;
  int64_t cost = 0;           ///< dollars
  int64_t minimumRating = 0;  ///< the skill the artist needs to be heard by them

  friend bool operator==(const CelebrityCameo&, const CelebrityCameo&) = default;
};

template <>
inline constexpr auto fieldsOf<CelebrityCameo> = [](auto&& take) {
  return take(Field{"id", &CelebrityCameo::id}, Field{"name", &CelebrityCameo::name},
              Field{"virality", &CelebrityCameo::virality}, Field{"rating", &CelebrityCameo::rating},
              Field{"cost", &CelebrityCameo::cost}, Field{"minimumRating", &CelebrityCameo::minimumRating});
};

}  // namespace backbeat
