#include "play/worlds.h"

#include <algorithm>

#include "features/builders.h"
#include "music/builders.h"
#include "music/chart.h"
#include "support/dates.h"

namespace backbeat {
namespace {

FeaturedOn agedVerse(const GameState& state, int64_t songId, const std::string& title, int64_t weeks) {
  FeaturedOn verse = newVerse(state, songId, title);
  verse.releaseWeek -= weeks;
  verse.releaseYear = 2023 + (verse.releaseWeek - 1) / 52;
  verse.marketingScore = static_cast<double>(std::max<int64_t>(40 - 2 * weeks, 0));
  verse.viralityScore = static_cast<double>(std::max<int64_t>(20 - 6 * weeks, 0));
  return verse;
}

/// On everybody's track: a verse on the chart, one that fades, one in its last week, one for an artist of the label,
/// and one that nobody has heard yet. Two artists of the label may ask as well.
void guest(GameState& state) {
  setDate(state, 190);
  furnishCareer(state, 3, 12);
  for (int64_t* skill : {&state.rhythm, &state.charisma, &state.vocalRange, &state.songWriting, &state.virality}) {
    *skill = 46;
  }
  state.totalFans = 900'000;
  state.totalCashAvailable = 240'000;
  state.totalEnergyAvailable = state.totalEnergyMax = 120;
  state.isLabelLaunched = 1;
  state.labelStreamingRate = 0.01;
  state.saveAllSignedArtistList.append(artistOfTheLabel(1, "Nell Okafor", 0.78));
  state.saveAllSignedArtistList.append(artistOfTheLabel(2, "Silas Crane", 0.65));
  state.signedArtistId = 2;
  FeaturedOn last = agedVerse(state, 1, "Faded Motel", 90);
  last.productionRating = 90.5;
  addVerse(state, std::move(last), 20, 600);
  addVerse(state, agedVerse(state, 2, "Velvet Letters", 30), 30, 9'000);
  FeaturedOn hit = agedVerse(state, 3, "Neon Carousel", 3);
  hit.productionRating = 96;
  hit.viralityScore = 94;
  hit.marketingScore = 95;
  hit.chartRanking = 9;
  addVerse(state, std::move(hit), 3, 9'400'000);
  FeaturedOn own = agedVerse(state, 4, "Honest Lullaby", 1);
  own.artistId = 1;
  own.artistName = "Nell Okafor";
  own.isSignedArtist = 1;
  own.percentageOfEarnings = 0.22;
  own.flatFee = 0;
  addVerse(state, std::move(own), 1, 1'400);
  addVerse(state, newVerse(state, 5, "Last Daylight"));
  BillboardSong row;
  row.songId = featuredSongOffset + 3;
  row.songTitle = "Neon Carousel";
  row.songFeature = state.myArtistsName;
  row.weeklySongListens = 9'400'000;
  row.rankThisWeek = row.peakPosition = 9;
  row.rankLastWeek = 14;
  row.weeksOnChart = 3;
  row.yearDebut = row.yearCurrent = state.yearNumber;
  row.weekNumber = state.weekNumberForTracking - 3;
  row.isOnCharts = true;
  state.saveAllBillboardSongList.append(std::move(row));
}

const RoomWorlds worlds({{"guest", guest}});

}  // namespace
}  // namespace backbeat
