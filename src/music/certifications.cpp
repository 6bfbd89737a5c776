#include "music/certifications.h"

#include <array>

#include "core/bands.h"

namespace backbeat {

namespace {

constexpr std::array<std::string_view, certificationTiers> names = {"Black", "Bronze",   "Silver",
                                                                    "Gold",  "Platinum", "Diamond"};

/// Every threshold ends in an odd 150: intended.
constexpr Band<int64_t, int64_t> songTiers[] = {
    {18'750'149, 0}, {37'500'149, 1}, {75'000'149, 2}, {150'000'149, 3}, {1'500'000'149, 4},
};
constexpr int64_t diamond = 5;

/// Units at which an album reaches tier 1, 2, ...
constexpr std::array<int64_t, 5> albumUnits = {125'000, 250'000, 500'000, 1'000'000, 10'000'000};

}  // namespace

std::string_view certificationName(int64_t tier) { return names[static_cast<size_t>(tier)]; }

int64_t songCertificationTier(int64_t totalListen) { return bandFor(songTiers, totalListen, diamond); }

int64_t albumCertificationTier(const Album& album) {
  return album.albumAward >= 1 && album.albumAward <= diamond ? album.albumAward : 0;
}

int64_t streamsForTier(int64_t tier) { return songTiers[tier - 1].upTo + 1; }

int64_t copiesForTier(int64_t tier) { return albumUnits[static_cast<size_t>(tier - 1)]; }

std::optional<int64_t> nextSongCertification(int64_t totalListen) {
  const int64_t tier = songCertificationTier(totalListen);
  if (tier == diamond) return std::nullopt;
  return streamsForTier(tier + 1);
}

std::optional<int64_t> nextAlbumCertification(const Album& album) {
  const int64_t tier = albumCertificationTier(album);
  if (tier == diamond) return std::nullopt;
  return copiesForTier(tier + 1);
}

CertificationCounts countCertifications(const GameState& state) {
  CertificationCounts counts;
  int64_t* const albums[] = {&counts.blackAlbums, &counts.bronzeAlbums,   &counts.silverAlbums,
                             &counts.goldAlbums,  &counts.platinumAlbums, &counts.diamondAlbums};
  int64_t* const songs[] = {&counts.blackSongs, &counts.bronzeSongs,   &counts.silverSongs,
                            &counts.goldSongs,  &counts.platinumSongs, &counts.diamondSongs};
  for (const Album& album : state.saveAllAlbumList) {
    if (album.albumId > 0) *albums[albumCertificationTier(album)] += 1;
  }
  for (const Song& song : state.saveAllSongList) {
    if (song.isReleased) *songs[songCertificationTier(song.totalListen)] += 1;
  }
  return counts;
}

}  // namespace backbeat
