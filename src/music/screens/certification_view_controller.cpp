#include "music/screens/certification_view_controller.h"

#include <algorithm>
#include <array>

#include "core/money.h"
#include "core/sorting.h"
#include "music/certifications.h"
#include "music/screens/statistics.h"

namespace backbeat {

namespace {

constexpr size_t inReachShown = 3;

using Counts = std::array<int64_t, certificationTiers>;

/// Black is no metal: it is what every record begins as.
constexpr std::array<const char*, certificationTiers> trophies = {"album",  "bronzeTrophy",   "silverTrophy",
                                                                  "trophy", "platinumTrophy", "diamondTrophy"};

/// The brightest first; two rows of three. One that was never won is hollow and tells what it takes.
void addTiles(View& view, const Counts& counts, int64_t (*asks)(int64_t tier)) {
  for (int64_t row = 1; row >= 0; --row) {
    Tiles tiles;
    for (int64_t tier = row * 3 + 2; tier >= row * 3; --tier) {
      const int64_t count = counts[static_cast<size_t>(tier)];
      Tile tile{.icon = trophies[static_cast<size_t>(tier)],
                .label = std::string(certificationName(tier)),
                .value = withCommas(count)};
      if (count == 0) tile.tone = Tone::locked;
      if (count == 0 && tier > 0) tile.note = "at " + abbreviated(static_cast<double>(asks(tier)));
      tiles.items.push_back(std::move(tile));
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
  sortStably(songs, [](const auto& a, const auto& b) { return a.first > b.first; });
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
  addTiles(view,
           {counts.blackAlbums, counts.bronzeAlbums, counts.silverAlbums, counts.goldAlbums, counts.platinumAlbums,
            counts.diamondAlbums},
           copiesForTier);
  view.add(Heading{"Songs"});
  addTiles(view,
           {counts.blackSongs, counts.bronzeSongs, counts.silverSongs, counts.goldSongs, counts.platinumSongs,
            counts.diamondSongs},
           streamsForTier);
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
