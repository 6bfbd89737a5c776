#include "live/builders.h"

#include <utility>

namespace backbeat {

MusicTour venueOnTour(const std::string& stadium, int64_t shows, int64_t seatsSold) {
  MusicTour venue;
  venue.tourLocationId = 25;
  venue.tourTitle = "Wide Awake Tour";
  venue.stadium = stadium;
  venue.location = "Tennessee, USA";
  venue.ticketPrice = 150;
  venue.seatsSold = seatsSold;
  venue.seatCapacity = 2'500;
  venue.numberOfShows = shows;
  return venue;
}

void putOnTour(GameState& state, std::vector<MusicTour> venues, int64_t energy) {
  state.tourId += 1;
  for (MusicTour& venue : venues) {
    venue.tourId = state.tourId;
    venue.year = state.yearNumber;
    venue.week = state.weekNumberForTracking;
    state.saveAllMusicTourList.append(std::move(venue));
  }
  state.onTour = 1;
  state.onTourEnergyCost = energy;
}

Festival festivalIn(const GameState& state, int64_t weeks, const std::string& name) {
  Festival festival;
  festival.festivalName = name;
  festival.audience = 80'000;
  festival.payment = 15'000;
  festival.headliner = "Young Ghost";
  festival.lineupString = "Young Ghost • Noah Hale • " + state.myArtistsName;
  festival.weekNumberForTracking = state.weekNumberForTracking + weeks;
  festival.weekNumber = (festival.weekNumberForTracking - 1) % 52 + 1;
  festival.yearNumber = 2023 + (festival.weekNumberForTracking - 1) / 52;
  return festival;
}

void book(GameState& state, Festival festival) {
  festival.id = ++state.festivalId;
  state.saveAllFestivalList.append(std::move(festival));
}

}  // namespace backbeat
