// Bronze, silver, gold: what a song or an album has earned for good.
#pragma once

#include <optional>
#include <string_view>

#include "core/game_state.h"

namespace backbeat {

/// Tiers 0 to 5: black, bronze, silver, gold, platinum, diamond.
inline constexpr int64_t certificationTiers = 6;
std::string_view certificationName(int64_t tier);

/// A song's tier by its lifetime streams; worked out when asked for, never stored.
int64_t songCertificationTier(int64_t totalListen);
/// The stored tier; anything that is no tier counts as black.
int64_t albumCertificationTier(const Album& album);

/// Streams of a song, or copies of an album, that make tier 1 to 5.
int64_t streamsForTier(int64_t tier);
int64_t copiesForTier(int64_t tier);

/// Streams or units that the next tier asks for; nothing at diamond.
std::optional<int64_t> nextSongCertification(int64_t totalListen);
std::optional<int64_t> nextAlbumCertification(const Album& album);

/// How many of each the artist has: released songs, and all albums but "Single", released or not.
struct CertificationCounts {
  int64_t blackAlbums = 0;
  int64_t bronzeAlbums = 0;
  int64_t silverAlbums = 0;
  int64_t goldAlbums = 0;
  int64_t platinumAlbums = 0;
  int64_t diamondAlbums = 0;
  int64_t blackSongs = 0;
  int64_t bronzeSongs = 0;
  int64_t silverSongs = 0;
  int64_t goldSongs = 0;
  int64_t platinumSongs = 0;
  int64_t diamondSongs = 0;
};
CertificationCounts countCertifications(const GameState& state);

}  // namespace backbeat
