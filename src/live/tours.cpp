#include "live/tours.h"

#include <algorithm>

#include "career/touring.h"
#include "core/numbers.h"
#include "live/show_money.h"

namespace backbeat {

namespace {

/// Position of the venue that plays this week, or the list's size.
size_t venueOfTheWeek(const GameState& state) {
  const RecordList<MusicTour>& venues = state.saveAllMusicTourList;
  size_t venue = firstVenueToCome(state);
  while (venue < venues.size() && venues[venue].numberOfShows < 1) ++venue;
  return venue;
}

void play(Game& game, size_t position) {
  GameState& state = game.state;
  const MusicTour& venue = state.saveAllMusicTourList[position];
  const int64_t seats = std::min(venue.seatsSold, venue.seatCapacity);
  game.turn.seatsSoldOnTourForMerch = seats;
  WeeklyTourSales sales;
  sales.tourId = venue.tourId;
  sales.tourStadium = venue.stadium;
  sales.tourLocation = venue.location;
  sales.tourRevenue = netOfShow(showTerms(state), venue.ticketPrice, seats);
  sales.seatsSold = seats;
  sales.soldOut = soldOut(venue) ? 1 : 0;
  sales.weekNumber = state.weekNumber;
  sales.yearNumber = state.yearNumber;
  state.saveAllWeeklyTourSales.append(sales);
  const int64_t gross = truncate(venue.ticketPrice * static_cast<double>(seats));
  state.saveAllMusicTourList.update(position, [&](MusicTour& played) {
    played.grossRevenue = add(played.grossRevenue, gross);
    played.numberOfShows -= 1;
    if (played.numberOfShows < 1) played.hasPerformed = true;
  });
}

/// The rest begins, and the tour's energy goes from the job's figure too, though it never stood there: intended.
void endTour(Game& game) {
  GameState& state = game.state;
  state.onTour = 0;
  state.timeUntilNextTour = drawRestAfterTour(game.random);
  state.weeklyEnergyCost -= state.onTourEnergyCost;
  state.onTourEnergyCost = 0;
  game.save(&GameState::onTour, &GameState::timeUntilNextTour, &GameState::weeklyEnergyCost,
            &GameState::onTourEnergyCost);
}

}  // namespace

void runWeeklyTourShow(Game& game) {
  GameState& state = game.state;
  game.turn.seatsSoldOnTourForMerch = 0;
  if (!mayTour(state) || state.onTour < 1 || state.saveAllMusicTourList.empty()) return;
  const size_t venue = venueOfTheWeek(state);
  if (venue != state.saveAllMusicTourList.size()) play(game, venue);
  if (firstVenueToCome(state) == state.saveAllMusicTourList.size()) endTour(game);
  game.save(&GameState::saveAllWeeklyTourSales, &GameState::saveAllMusicTourList);
}

TourProgress tourProgress(const GameState& state) {
  const RecordList<MusicTour>& venues = state.saveAllMusicTourList;
  const RecordList<WeeklyTourSales>& sales = state.saveAllWeeklyTourSales;
  TourProgress progress;
  progress.firstVenue = venues.size();
  if (venues.empty()) return progress;
  const int64_t tourId = venues.back().tourId;
  progress.tourTitle = venues.back().tourTitle;
  while (progress.firstVenue > 0 && venues[progress.firstVenue - 1].tourId == tourId) --progress.firstVenue;
  for (size_t i = progress.firstVenue; i < venues.size(); ++i) {
    progress.grossRevenue += venues[i].grossRevenue;
    if (!venues[i].hasPerformed) progress.showsLeft += venues[i].numberOfShows;
  }
  size_t first = sales.size();
  while (first > 0 && sales[first - 1].tourId == tourId) --first;
  progress.played = sales.stretch(first, sales.size());
  size_t venue = progress.firstVenue;
  for (const WeeklyTourSales& show : progress.played) {
    progress.net += show.tourRevenue;
    progress.seatsSold += show.seatsSold;
    while (venue < venues.size() && venues[venue].stadium != show.tourStadium) ++venue;
    if (venue < venues.size()) progress.seatsOffered += venues[venue].seatCapacity;
  }
  return progress;
}

}  // namespace backbeat
