// Records of the label lists: how each looks in memory, and the table that says how it is stored.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "core/fields.h"

namespace backbeat {

/// One member of the label's staff.
struct Employee {
  int64_t employeeId = 0;
  std::string employeeName;
  int64_t employeeSalary = 0;
  int64_t employeeDepartmentCode = 0;
  int64_t employeeSubCode = 0;
  std::string employeeImage;
  int64_t employeeOriginalRating = 0;
  int64_t employeeRating = 0;
  double employeeEnergy = 0;
  double employeeMorale = 0;
  double employeeStake = 0;
  int64_t employeeBurnRate = 0;

  friend bool operator==(const Employee&, const Employee&) = default;
};

template <>
inline constexpr auto fieldsOf<Employee> = [](auto&& take) {
  return take(Field{"employeeId", &Employee::employeeId}, Field{"employeeName", &Employee::employeeName},
              Field{"employeeSalary", &Employee::employeeSalary},
              Field{"employeeDepartmentCode", &Employee::employeeDepartmentCode},
              Field{"employeeSubCode", &Employee::employeeSubCode}, Field{"employeeImage", &Employee::employeeImage},
              Field{"employeeOriginalRating", &Employee::employeeOriginalRating},
              Field{"employeeRating", &Employee::employeeRating}, Field{"employeeEnergy", &Employee::employeeEnergy},
              Field{"employeeMorale", &Employee::employeeMorale}, Field{"employeeStake", &Employee::employeeStake},
              Field{"employeeBurnRate", &Employee::employeeBurnRate});
};

/// An artist that the player made up for scouting.
struct CreatedArtist {
  std::string name;
  int64_t charisma = 0;
  int64_t rhythm = 0;
  int64_t songwriting = 0;
  int64_t virality = 0;
  int64_t vocals = 0;
  int64_t talent = 0;
  int64_t monthlyListeners = 0;
  int64_t demoRating = 0;

  friend bool operator==(const CreatedArtist&, const CreatedArtist&) = default;
};

template <>
inline constexpr auto fieldsOf<CreatedArtist> = [](auto&& take) {
  return take(Field{"name", &CreatedArtist::name}, Field{"charisma", &CreatedArtist::charisma},
              Field{"rhythm", &CreatedArtist::rhythm}, Field{"songwriting", &CreatedArtist::songwriting},
              Field{"virality", &CreatedArtist::virality}, Field{"vocals", &CreatedArtist::vocals},
              Field{"talent", &CreatedArtist::talent}, Field{"monthlyListeners", &CreatedArtist::monthlyListeners},
              Field{"demoRating", &CreatedArtist::demoRating});
};

/// One artist on the player's label.
struct SignedArtist {
  std::string name;
  int64_t artistId = 0;
  int64_t charisma = 0;
  int64_t rhythm = 0;
  int64_t songwriting = 0;
  int64_t virality = 0;
  int64_t vocals = 0;
  int64_t talent = 0;
  int64_t originalCharisma = 0;
  int64_t originalRhythm = 0;
  int64_t originalSongwriting = 0;
  int64_t originalVirality = 0;
  int64_t originalVocals = 0;
  int64_t originalTalent = 0;
  int64_t yearSigned = 0;
  int64_t weekSigned = 0;
  int64_t weekEnd = 0;
  double labelRevenuePercentage = 0;
  int64_t signingBonus = 0;
  int64_t weeksToCompleteAlbum = 0;
  double happiness = 0;
  int64_t monthlyListeners = 0;
  int64_t originalMonthlyListeners = 0;
  int64_t originalRating = 0;
  bool underContract = false;
  double totalLifetimeCost = 0;

  friend bool operator==(const SignedArtist&, const SignedArtist&) = default;
};

template <>
inline constexpr auto fieldsOf<SignedArtist> = [](auto&& take) {
  return take(
      Field{"name", &SignedArtist::name}, Field{"artistId", &SignedArtist::artistId},
      Field{"charisma", &SignedArtist::charisma}, Field{"rhythm", &SignedArtist::rhythm},
      Field{"songwriting", &SignedArtist::songwriting}, Field{"virality", &SignedArtist::virality},
      Field{"vocals", &SignedArtist::vocals}, Field{"talent", &SignedArtist::talent},
      Field{"originalCharisma", &SignedArtist::originalCharisma},
      Field{"originalRhythm", &SignedArtist::originalRhythm},
      Field{"originalSongwriting", &SignedArtist::originalSongwriting},
      Field{"originalVirality", &SignedArtist::originalVirality},
      Field{"originalVocals", &SignedArtist::originalVocals}, Field{"originalTalent", &SignedArtist::originalTalent},
      Field{"yearSigned", &SignedArtist::yearSigned}, Field{"weekSigned", &SignedArtist::weekSigned},
      Field{"weekEnd", &SignedArtist::weekEnd}, Field{"labelRevenuePercentage", &SignedArtist::labelRevenuePercentage},
      Field{"signingBonus", &SignedArtist::signingBonus},
      Field{"weeksToCompleteAlbum", &SignedArtist::weeksToCompleteAlbum}, Field{"happiness", &SignedArtist::happiness},
      Field{"monthlyListeners", &SignedArtist::monthlyListeners},
      Field{"originalMonthlyListeners", &SignedArtist::originalMonthlyListeners},
      Field{"originalRating", &SignedArtist::originalRating}, Field{"underContract", &SignedArtist::underContract},
      Field{"totalLifetimeCost", &SignedArtist::totalLifetimeCost});
};

/// An artist is found by their id.
template <>
inline constexpr int64_t SignedArtist::*historyKeyOf<SignedArtist> = &SignedArtist::artistId;

/// One song of a signed artist.
struct SignedArtistSong {
  int64_t songId = 0;
  std::string title;
  int64_t albumId = 0;
  int64_t artistId = 0;
  std::string artistName;
  bool isReleased = false;
  int64_t releaseWeek = 0;
  int64_t releaseYear = 0;
  double productionRating = 0;
  int64_t totalListen = 0;
  double viralityScore = 0;
  std::vector<std::string> features;
  double marketingScore = 0;
  int64_t chartRanking = 0;
  int64_t songAward = 0;
  double streamPayRate = 0;
  double percentageOfEarnings = 0;
  int64_t isExplicit = 0;

  friend bool operator==(const SignedArtistSong&, const SignedArtistSong&) = default;
};

template <>
inline constexpr auto fieldsOf<SignedArtistSong> = [](auto&& take) {
  return take(
      Field{"songId", &SignedArtistSong::songId}, Field{"title", &SignedArtistSong::title},
      Field{"albumId", &SignedArtistSong::albumId}, Field{"artistId", &SignedArtistSong::artistId},
      Field{"artistName", &SignedArtistSong::artistName}, Field{"isReleased", &SignedArtistSong::isReleased},
      Field{"releaseWeek", &SignedArtistSong::releaseWeek}, Field{"releaseYear", &SignedArtistSong::releaseYear},
      Field{"productionRating", &SignedArtistSong::productionRating},
      Field{"totalListen", &SignedArtistSong::totalListen}, Field{"viralityScore", &SignedArtistSong::viralityScore},
      Field{"features", &SignedArtistSong::features}, Field{"marketingScore", &SignedArtistSong::marketingScore},
      Field{"chartRanking", &SignedArtistSong::chartRanking}, Field{"songAward", &SignedArtistSong::songAward},
      Field{"streamPayRate", &SignedArtistSong::streamPayRate},
      Field{"percentageOfEarnings", &SignedArtistSong::percentageOfEarnings},
      Field{"isExplicit", &SignedArtistSong::isExplicit});
};

/// The songs of an album are found together.
template <>
inline constexpr int64_t SignedArtistSong::*historyKeyOf<SignedArtistSong> = &SignedArtistSong::albumId;

/// One album of a signed artist.
struct SignedArtistAlbum {
  int64_t albumId = 0;
  int64_t artistId = 0;
  std::string title;
  bool isReleased = false;
  int64_t albumAward = 0;
  double productionRating = 0;
  int64_t albumsSold = 0;
  int64_t releaseWeek = 0;
  int64_t releaseYear = 0;
  int64_t chartRanking = 0;
  double price = 0;
  double marketingScore = 0;
  double percentageOfEarnings = 0;

  friend bool operator==(const SignedArtistAlbum&, const SignedArtistAlbum&) = default;
};

template <>
inline constexpr auto fieldsOf<SignedArtistAlbum> = [](auto&& take) {
  return take(
      Field{"albumId", &SignedArtistAlbum::albumId}, Field{"artistId", &SignedArtistAlbum::artistId},
      Field{"title", &SignedArtistAlbum::title}, Field{"isReleased", &SignedArtistAlbum::isReleased},
      Field{"albumAward", &SignedArtistAlbum::albumAward},
      Field{"productionRating", &SignedArtistAlbum::productionRating},
      Field{"albumsSold", &SignedArtistAlbum::albumsSold}, Field{"releaseWeek", &SignedArtistAlbum::releaseWeek},
      Field{"releaseYear", &SignedArtistAlbum::releaseYear}, Field{"chartRanking", &SignedArtistAlbum::chartRanking},
      Field{"price", &SignedArtistAlbum::price}, Field{"marketingScore", &SignedArtistAlbum::marketingScore},
      Field{"percentageOfEarnings", &SignedArtistAlbum::percentageOfEarnings});
};

/// The albums of an artist are found together.
template <>
inline constexpr int64_t SignedArtistAlbum::*historyKeyOf<SignedArtistAlbum> = &SignedArtistAlbum::artistId;

/// What one signed artist's song streamed in one week.
struct SignedArtistWeeklySongListens {
  int64_t songId = 0;
  int64_t artistId = 0;
  int64_t albumId = 0;
  std::string songTitle;
  int64_t songListens = 0;
  int64_t weekNumber = 0;
  int64_t yearNumber = 0;
  double totalStreamRevenue = 0;

  friend bool operator==(const SignedArtistWeeklySongListens&, const SignedArtistWeeklySongListens&) = default;
};

template <>
inline constexpr auto fieldsOf<SignedArtistWeeklySongListens> = [](auto&& take) {
  return take(Field{"songId", &SignedArtistWeeklySongListens::songId},
              Field{"artistId", &SignedArtistWeeklySongListens::artistId},
              Field{"albumId", &SignedArtistWeeklySongListens::albumId},
              Field{"songTitle", &SignedArtistWeeklySongListens::songTitle},
              Field{"songListens", &SignedArtistWeeklySongListens::songListens},
              Field{"weekNumber", &SignedArtistWeeklySongListens::weekNumber},
              Field{"yearNumber", &SignedArtistWeeklySongListens::yearNumber},
              Field{"totalStreamRevenue", &SignedArtistWeeklySongListens::totalStreamRevenue});
};

/// What one signed artist's album sold in one week.
struct SignedArtistWeeklyAlbumSales {
  int64_t albumId = 0;
  int64_t artistId = 0;
  std::string albumTitle;
  int64_t albumSales = 0;
  double albumRevenue = 0;
  int64_t weekNumber = 0;
  int64_t yearNumber = 0;

  friend bool operator==(const SignedArtistWeeklyAlbumSales&, const SignedArtistWeeklyAlbumSales&) = default;
};

template <>
inline constexpr auto fieldsOf<SignedArtistWeeklyAlbumSales> = [](auto&& take) {
  return take(Field{"albumId", &SignedArtistWeeklyAlbumSales::albumId},
              Field{"artistId", &SignedArtistWeeklyAlbumSales::artistId},
              Field{"albumTitle", &SignedArtistWeeklyAlbumSales::albumTitle},
              Field{"albumSales", &SignedArtistWeeklyAlbumSales::albumSales},
              Field{"albumRevenue", &SignedArtistWeeklyAlbumSales::albumRevenue},
              Field{"weekNumber", &SignedArtistWeeklyAlbumSales::weekNumber},
              Field{"yearNumber", &SignedArtistWeeklyAlbumSales::yearNumber});
};

}  // namespace backbeat
