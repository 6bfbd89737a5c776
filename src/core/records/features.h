// Records of the features lists: how each looks in memory, and the table that says how it is stored.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "core/fields.h"

namespace backbeat {

/// Another artist's song on which the player is a guest.
struct FeaturedOn {
  int64_t songId = 0;
  int64_t artistId = 0;
  std::string artistName;
  std::string title;
  std::string album;
  int64_t albumId = 0;
  bool isReleased = false;
  int64_t releaseWeek = 0;
  int64_t releaseYear = 0;
  double productionRating = 0;
  int64_t totalListen = 0;
  double viralityScore = 0;
  int64_t productionBoostCount = 0;
  int64_t viralityBoostCount = 0;
  std::vector<std::string> features;
  double marketingScore = 0;
  int64_t chartRanking = 0;
  int64_t isExplicit = 0;
  int64_t songAward = 0;
  double flatFee = 0;
  double streamPayRate = 0;
  double percentageOfEarnings = 0;
  int64_t isSignedArtist = 0;

  friend bool operator==(const FeaturedOn&, const FeaturedOn&) = default;
};

template <>
inline constexpr auto fieldsOf<FeaturedOn> = [](auto&& take) {
  return take(Field{"songId", &FeaturedOn::songId}, Field{"artistId", &FeaturedOn::artistId},
              Field{"artistName", &FeaturedOn::artistName}, Field{"title", &FeaturedOn::title},
              Field{"album", &FeaturedOn::album}, Field{"albumId", &FeaturedOn::albumId},
              Field{"isReleased", &FeaturedOn::isReleased}, Field{"releaseWeek", &FeaturedOn::releaseWeek},
              Field{"releaseYear", &FeaturedOn::releaseYear}, Field{"productionRating", &FeaturedOn::productionRating},
              Field{"totalListen", &FeaturedOn::totalListen}, Field{"viralityScore", &FeaturedOn::viralityScore},
              Field{"productionBoostCount", &FeaturedOn::productionBoostCount},
              Field{"viralityBoostCount", &FeaturedOn::viralityBoostCount}, Field{"features", &FeaturedOn::features},
              Field{"marketingScore", &FeaturedOn::marketingScore}, Field{"chartRanking", &FeaturedOn::chartRanking},
              Field{"isExplicit", &FeaturedOn::isExplicit}, Field{"songAward", &FeaturedOn::songAward},
              Field{"flatFee", &FeaturedOn::flatFee}, Field{"streamPayRate", &FeaturedOn::streamPayRate},
              Field{"percentageOfEarnings", &FeaturedOn::percentageOfEarnings},
              Field{"isSignedArtist", &FeaturedOn::isSignedArtist});
};

/// What one guest verse streamed in one week.
struct FeaturedOnWeeklySongListens {
  int64_t songId = 0;
  std::string artistName;
  int64_t artistId = 0;
  int64_t albumId = 0;
  std::string songTitle;
  int64_t songListens = 0;
  int64_t weekNumber = 0;
  int64_t yearNumber = 0;
  double totalStreamRevenue = 0;

  friend bool operator==(const FeaturedOnWeeklySongListens&, const FeaturedOnWeeklySongListens&) = default;
};

template <>
inline constexpr auto fieldsOf<FeaturedOnWeeklySongListens> = [](auto&& take) {
  return take(Field{"songId", &FeaturedOnWeeklySongListens::songId},
              Field{"artistName", &FeaturedOnWeeklySongListens::artistName},
              Field{"artistId", &FeaturedOnWeeklySongListens::artistId},
              Field{"albumId", &FeaturedOnWeeklySongListens::albumId},
              Field{"songTitle", &FeaturedOnWeeklySongListens::songTitle},
              Field{"songListens", &FeaturedOnWeeklySongListens::songListens},
              Field{"weekNumber", &FeaturedOnWeeklySongListens::weekNumber},
              Field{"yearNumber", &FeaturedOnWeeklySongListens::yearNumber},
              Field{"totalStreamRevenue", &FeaturedOnWeeklySongListens::totalStreamRevenue});
};

/// A verse's weeks are looked up by its id, years back.
template <>
inline constexpr int64_t FeaturedOnWeeklySongListens::*historyKeyOf<FeaturedOnWeeklySongListens> =
    &FeaturedOnWeeklySongListens::songId;

}  // namespace backbeat
