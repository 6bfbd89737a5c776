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
  int64_t typeOfAward = 0;
  std::string nameOfAward;
  int64_t awardShow = 0;
  int64_t yearAwarded = 0;
  std::string artistName;
  int64_t isSongOrAlbum = 0;
  int64_t songOrAlbumId = 0;
  std::string songOrAlbumName;
  int64_t isWinner = 0;
  int64_t genreNumber = 0;

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

}  // namespace backbeat
