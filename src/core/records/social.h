// Records of the social lists: how each looks in memory, and the table that says how it is stored.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "core/fields.h"

namespace backbeat {

/// One post of the social feed.
struct Chirp {
  int64_t id = 0;
  int64_t artistId = 0;  ///< 0 the player, +200000 a partner, +100000 a company
  std::string artistName;
  std::string message;
  int64_t isPinned = 0;  ///< 0 or 1; at most one is pinned
  Date timestamp;
  int64_t commentCount = 0;
  int64_t reChirpCount = 0;
  int64_t likeCount = 0;
  int64_t news = 0;
  std::string imageString;
  int64_t typeOfAccount = 0;  ///< 0 player, 1 signed artist, 2 company, 3 person
  int64_t songId = 0;         ///< song it announces, -1 when none
  int64_t albumId = 0;        ///< album it announces, -1 when none

  friend bool operator==(const Chirp&, const Chirp&) = default;
};

template <>
inline constexpr auto fieldsOf<Chirp> = [](auto&& take) {
  return take(Field{"id", &Chirp::id}, Field{"artistId", &Chirp::artistId}, Field{"artistName", &Chirp::artistName},
              Field{"message", &Chirp::message}, Field{"isPinned", &Chirp::isPinned},
              Field{"timestamp", &Chirp::timestamp}, Field{"commentCount", &Chirp::commentCount},
              Field{"reChirpCount", &Chirp::reChirpCount}, Field{"likeCount", &Chirp::likeCount},
              Field{"news", &Chirp::news}, Field{"imageString", &Chirp::imageString},
              Field{"typeOfAccount", &Chirp::typeOfAccount}, Field{"songId", &Chirp::songId},
              Field{"albumId", &Chirp::albumId});
};

}  // namespace backbeat
