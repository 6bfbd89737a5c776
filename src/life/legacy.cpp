#include "life/legacy.h"

#include <algorithm>
#include <map>

#include "core/most.h"
#include "core/numbers.h"
#include "life/children.h"
#include "life/partner.h"
#include "music/chart.h"
#include "wealth/net_assets.h"

namespace backbeat {

namespace {

template <class List, class Match>
int64_t countOf(const List& list, Match matches) {
  return static_cast<int64_t>(std::count_if(list.begin(), list.end(), matches));
}

/// Each generation that took over was born when its predecessor wrote down.
int64_t birthYear(const GameState& state) {
  constexpr int64_t ofTheFirst = 2005;
  const bool isHeir = state.ageAtTakeover != 0 && !state.saveAllLegacyList.empty();
  return isHeir ? state.saveAllLegacyList.back().successorBirthYear : ofTheFirst;
}

void addWorks(const GameState& state, Legacy& legacy) {
  const auto isReleased = [](const auto& work) { return work.isReleased; };
  const auto isAlbum = [](const Album& album) { return album.isReleased && album.albumId > 0; };
  const auto isHeard = [](const Song& song) { return song.isReleased && song.totalListen > 0; };
  const auto isSold = [&](const Album& album) { return isAlbum(album) && album.albumsSold > 0; };
  legacy.numOfSongs = countOf(state.saveAllSongList, isReleased);
  legacy.numOfAlbums = countOf(state.saveAllAlbumList, isAlbum);
  if (const Song* song = recordWithMost(state.saveAllSongList, &Song::totalListen, isHeard)) {
    legacy.biggestSong = song->title;
    legacy.biggestSongStreams = song->totalListen;
  }
  if (const Album* album = recordWithMost(state.saveAllAlbumList, &Album::albumsSold, isSold)) {
    legacy.biggestAlbum = album->title;
    legacy.biggestAlbumSold = album->albumsSold;
  }
  legacy.diamondCertifications =
      countOf(state.saveAllAlbumList, [](const Album& album) { return album.albumAward >= albumDiamonds; });
  legacy.numberOfExplicitSongs = countOf(state.saveAllSongList, [](const Song& song) { return song.isExplicit >= 1; });
}

/// The greatest tour is the one with the most seats, whatever it took in.
void addTours(const GameState& state, Legacy& legacy) {
  struct Tour {
    std::string title;
    int64_t gross = 0;
    int64_t seats = 0;
    bool begun = false;
  };
  std::map<int64_t, Tour> tours;
  for (const MusicTour& venue : state.saveAllMusicTourList) {
    Tour& tour = tours[venue.tourId];
    tour.title = venue.tourTitle;
    tour.gross = add(tour.gross, venue.grossRevenue);
    tour.begun = tour.begun || venue.hasPerformed;
  }
  for (const WeeklyTourSales& show : state.saveAllWeeklyTourSales) {
    const auto tour = tours.find(show.tourId);
    if (tour != tours.end()) tour->second.seats = add(tour->second.seats, show.seatsSold);
  }
  for (const auto& [id, tour] : tours) {
    if (!tour.begun) continue;
    ++legacy.numOfTours;
    if (tour.seats <= legacy.biggestTourSeatsSold) continue;
    legacy.biggestTour = tour.gross;
    legacy.biggestTourName = tour.title;
    legacy.biggestTourSeatsSold = tour.seats;
  }
}

/// Of the artist's own songs and verses; those of the label's artists are theirs.
void addChart(const GameState& state, Legacy& legacy) {
  for (const BillboardSong& row : state.saveAllBillboardSongList) {
    if (isOfTheLabel(row)) continue;
    ++legacy.numberOfBillboardHits;
    if (row.weeksAtOne > 0) ++legacy.numberOfBillboardNumberOnes;
    if (row.weeksAtOne > legacy.longestBillboardNumberOne) {
      legacy.longestBillboardNumberOne = row.weeksAtOne;
      legacy.longestBillboardNumberOneTitle = row.songTitle;
    }
    if (row.weeksOnChart > legacy.longestBillboardWeeksOnCharts) {
      legacy.longestBillboardWeeksOnCharts = row.weeksOnChart;
      legacy.longestBillboardWeeksOnChartsTitle = row.songTitle;
    }
  }
}

void addAwards(const GameState& state, Legacy& legacy) {
  for (const Award& award : state.saveAllMusicAwards) {
    if (award.isWinner < 1) continue;
    ++legacy.numberOfAwards;
    legacy.awardsWon.push_back(award.nameOfAward + " (" + std::to_string(award.yearAwarded) + ")");
  }
}

std::string bioOf(const GameState& state) {
  const std::string& name = state.myArtistsName;
  return name + " • Musician" + (state.saveAllInvestmentPropertyList.empty() ? "" : ", Real Estate") +
         (state.saveAllVentureInvestments.empty() ? "" : ", Investor") + "\n" + name +
         " was that rarest of music phenomena: a superstar with unrivaled musicality across all genres.";
}

}  // namespace

std::vector<std::string> parentsOfArtist(const GameState& state) {
  std::vector<std::string> parents;
  std::string_view left = state.heirParentNames;
  while (!left.empty()) {
    const size_t end = std::min(left.find('\n'), left.size());
    if (end > 0) parents.emplace_back(left.substr(0, end));
    left.remove_prefix(std::min(end + 1, left.size()));
  }
  return parents;
}

double legacyNetWorth(const GameState& state) {
  constexpr double most = 9e15;
  return std::clamp(netAssets(state), -most, most);
}

Legacy legacyOf(const GameState& state, const Child& successor) {
  Legacy legacy;
  legacy.name = state.myArtistsName;
  legacy.netWorth = roundHalfAway(legacyNetWorth(state));
  legacy.yearBorn = birthYear(state);
  legacy.yearPassed = state.yearNumber;
  legacy.parentsNames = parentsOfArtist(state);
  addWorks(state, legacy);
  addTours(state, legacy);
  addChart(state, legacy);
  addAwards(state, legacy);
  legacy.spotifyBio = bioOf(state);
  legacy.causeOfDeath = "Passed away peacefully";
  legacy.numberOfExes =
      countOf(state.saveAllMatchesList, [](const Matches& match) { return match.relationshipState < love::matched; });
  legacy.biggestInvestmentExit = state.biggestExit;
  legacy.numberOfChildren = childrenInFamily(state);
  legacy.recordLabelName = state.myLabelName;
  legacy.successorBirthYear = successor.birthYear;
  legacy.totalFollowers = state.totalFans;
  legacy.imageString = state.twitterProfileImage.empty() ? state.myArtistsName : state.twitterProfileImage;
  return legacy;
}

}  // namespace backbeat
