// Records of the recognition lists: how each looks in memory, and the table that says how it is stored.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "core/fields.h"

namespace backbeat {

/// One nomination, won or lost.
struct Award {
  int64_t id = 0;
  int64_t typeOfAward = 0;  ///< 0 record, 1 album, 2 song of the year, 4 album and 5 song of a genre
  std::string nameOfAward;  ///< "Record of the Year", "Best Jazz Song"
  int64_t awardShow = 0;    ///< always 0
  int64_t yearAwarded = 0;
  std::string artistName;     ///< the player's, or one of the label's
  int64_t isSongOrAlbum = 0;  ///< 0 song, 1 album
  int64_t songOrAlbumId = 0;  ///< among the artist's own works, or among the label's
  std::string songOrAlbumName;
  int64_t isWinner = 0;
  int64_t genreNumber = 0;  ///< -1 in the main fields

  friend bool operator==(const Award&, const Award&) = default;
};

template <>
inline constexpr auto fieldsOf<Award> = [](auto&& take) {
  return take(Field{"id", &Award::id}, Field{"typeOfAward", &Award::typeOfAward},
              Field{"nameOfAward", &Award::nameOfAward}, Field{"awardShow", &Award::awardShow},
              Field{"yearAwarded", &Award::yearAwarded}, Field{"artistName", &Award::artistName},
              Field{"isSongOrAlbum", &Award::isSongOrAlbum}, Field{"songOrAlbumId", &Award::songOrAlbumId},
              Field{"songOrAlbumName", &Award::songOrAlbumName}, Field{"isWinner", &Award::isWinner},
              Field{"genreNumber", &Award::genreNumber});
};

/// What stands in a field of the awards: a song or an album by its title, and whose it is.
struct AwardNominee {
  std::string title;
  std::string artistName;

  friend bool operator==(const AwardNominee&, const AwardNominee&) = default;
};

template <>
inline constexpr auto fieldsOf<AwardNominee> = [](auto&& take) {
  return take(Field{"title", &AwardNominee::title}, Field{"artistName", &AwardNominee::artistName});
};

/// One field of the awards with all that were nominated in it, rivals too.
struct AwardField {
  int64_t typeOfAward = 0;
  int64_t genreNumber = 0;
  std::vector<AwardNominee> nominees = {};

  friend bool operator==(const AwardField&, const AwardField&) = default;
};

template <>
inline constexpr auto fieldsOf<AwardField> = [](auto&& take) {
  return take(Field{"typeOfAward", &AwardField::typeOfAward}, Field{"genreNumber", &AwardField::genreNumber},
              Field{"nominees", &AwardField::nominees});
};

/// How far the latest year of awards has come that was opened.
struct AwardYear {
  int64_t year = 0;
  int64_t stage = 0;                         ///< 1 nominated, 2 decided
  std::vector<AwardField> genreFields = {};  ///< as they were announced; the main fields have their dictionaries

  friend bool operator==(const AwardYear&, const AwardYear&) = default;
};

template <>
inline constexpr auto fieldsOf<AwardYear> = [](auto&& take) {
  return take(Field{"year", &AwardYear::year}, Field{"stage", &AwardYear::stage},
              Field{"genreFields", &AwardYear::genreFields});
};

}  // namespace backbeat
