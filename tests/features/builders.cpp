#include "features/builders.h"

#include <algorithm>

namespace backbeat {

FeaturedOn newVerse(const GameState& state, int64_t songId, const std::string& title) {
  FeaturedOn verse;
  verse.songId = songId;
  verse.artistId = 12;
  verse.artistName = "Dex Monarch";
  verse.title = title;
  verse.album = "Single";
  verse.isReleased = true;
  verse.releaseWeek = state.weekNumberForTracking;
  verse.releaseYear = state.yearNumber;
  verse.productionRating = 50;
  verse.viralityScore = 20;
  verse.features = {"", state.myArtistsName};
  verse.marketingScore = 40;
  verse.flatFee = 4'700;
  verse.streamPayRate = 0.001;
  verse.percentageOfEarnings = 0.12;
  return verse;
}

void addVerse(GameState& state, FeaturedOn verse, int64_t weeks, int64_t streamsEach) {
  for (int64_t ago = weeks; ago > 0; --ago) {
    const int64_t absolute = state.weekNumberForTracking - ago;
    FeaturedOnWeeklySongListens week;
    week.songId = verse.songId;
    week.artistName = verse.artistName;
    week.artistId = verse.artistId;
    week.songTitle = verse.title;
    week.songListens = streamsEach;
    week.weekNumber = (absolute - 1) % 52 + 1;
    week.yearNumber = 2023 + (absolute - 1) / 52;
    week.totalStreamRevenue = static_cast<double>(streamsEach) * verse.streamPayRate * verse.percentageOfEarnings;
    // The rows of all verses stand week by week.
    std::vector<FeaturedOnWeeklySongListens> rows(state.saveAllFeaturedOnWeeklySongListens.begin(),
                                                  state.saveAllFeaturedOnWeeklySongListens.end());
    const auto later = std::find_if(rows.begin(), rows.end(), [&](const FeaturedOnWeeklySongListens& row) {
      return std::pair(row.yearNumber, row.weekNumber) > std::pair(week.yearNumber, week.weekNumber);
    });
    rows.insert(later, week);
    state.saveAllFeaturedOnWeeklySongListens.assign(std::move(rows));
  }
  verse.totalListen += weeks * streamsEach;
  state.featuredOnSongId = std::max(state.featuredOnSongId, verse.songId);
  state.saveAllFeaturedOnList.append(std::move(verse));
}

SignedArtist artistOfTheLabel(int64_t artistId, const std::string& name, double labelRevenuePercentage) {
  SignedArtist artist;
  artist.name = name;
  artist.artistId = artistId;
  for (int64_t* trait : {&artist.songwriting, &artist.vocals, &artist.rhythm, &artist.charisma, &artist.virality}) {
    *trait = 60;
  }
  artist.labelRevenuePercentage = labelRevenuePercentage;
  artist.monthlyListeners = 80'000;
  artist.underContract = true;
  return artist;
}

}  // namespace backbeat
