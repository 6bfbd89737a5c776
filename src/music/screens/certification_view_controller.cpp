#include "music/screens/certification_view_controller.h"

#include <algorithm>
#include <array>

#include "core/money.h"
#include "music/certifications.h"
#include "music/screens/statistics.h"

namespace backbeat {

namespace {

constexpr size_t inReachShown = 3;

using Counts = std::array<int64_t, certificationTiers>;

/// The brightest first; two rows of three.
void addTiles(View& view, const Counts& counts) {
  for (int64_t row = 1; row >= 0; --row) {
    Tiles tiles;
    for (int64_t tier = row * 3 + 2; tier >= row * 3; --tier) {
      const int64_t count = counts[static_cast<size_t>(tier)];
      tiles.items.push_back({.icon = "trophy",
                             .label = std::string(certificationName(tier)),
                             .value = withCommas(count),
                             .tone = tier > 0 && count > 0 ? Tone::good : Tone::plain});
    }
    view.add(std::move(tiles));
  }
}

/// The released songs that are nearest to their next certification.
void describeInReach(View& view, const GameState& state) {
  std::vector<std::pair<double, const Song*>> songs;
  for (const Song& song : state.saveAllSongList) {
    const auto next = nextSongCertification(song.totalListen);
    if (!song.isReleased || !next) continue;
    songs.emplace_back(static_cast<double>(song.totalListen) / static_cast<double>(*next), &song);
  }
  if (songs.empty()) return;
  std::stable_sort(songs.begin(), songs.end(), [](const auto& a, const auto& b) { return a.first > b.first; });
  view.add(Heading{"Next in reach"});
  for (size_t i = 0; i < std::min(inReachShown, songs.size()); ++i) {
    Meter meter = songCertificationMeter(*songs[i].second);
    meter.label = songs[i].second->title;
    view.add(std::move(meter));
  }
}

}  // namespace

View CertificationViewController::view() const {
  View view{.title = "Certifications"};
  const CertificationCounts counts = countCertifications(state());
  view.add(Heading{"Albums"});
  addTiles(view, {counts.blackAlbums, counts.bronzeAlbums, counts.silverAlbums, counts.goldAlbums,
                  counts.platinumAlbums, counts.diamondAlbums});
  view.add(Heading{"Songs"});
  addTiles(view, {counts.blackSongs, counts.bronzeSongs, counts.silverSongs, counts.goldSongs, counts.platinumSongs,
                  counts.diamondSongs});
  describeInReach(view, state());
  view.help =
      Help{.title = "What counts",
           .text =
               "An album is certified by the copies it sold in all: bronze at 125,000, silver at 250,000, gold at "
               "500,000, platinum at a million, diamond at ten million.\n\nA song is certified by its streams in "
               "all: bronze at about 19 million, silver at 38, gold at 75, platinum at 150 and diamond at 1,500 "
               "million. Black is everything before that."};
  return view;
}

}  // namespace backbeat
