// Planning a tour: which venues, at what price, and what it would come to.
#pragma once

#include <string>
#include <vector>

#include "core/game.h"
#include "core/outcome.h"
#include "live/tour_locations.h"

namespace backbeat {

/// A tour while it is being planned.
struct TourPlan {
  std::string tempTourTitle = {};
  int64_t showsPerVenue = 1;
  int64_t overallRating = 0;                           ///< the artist's skill when planning began
  std::vector<MusicTour> potentialMusicTourList = {};  ///< in the order chosen
};

/// How a venue would sell.
struct VenueOutlook {
  double percent = 0;      ///< of the seats that find a buyer, shared out over the shows; below 0 where nobody wants it
  double ticketPrice = 0;  ///< dollars, 50 to 175 by the demand and not by anybody's choice
  int64_t seatsSold = 0;   ///< at each show; may lie above the capacity
};
/// For an artist of that skill, in a town that feels so about them (`demand`, -5 to 5).
VenueOutlook venueOutlook(const GameState& state, int64_t rating, const TourLocation& location, int64_t demand,
                          int64_t shows);

/// What all of the plan comes to. Follows from its venues as they were added.
struct TourTotals {
  int64_t numberOfShows = 0;  ///< venues, whatever is played there
  int64_t totalCapacity = 0;
  int64_t energyCostToTour = 0;  ///< a week
  int64_t weeksOnTour = 0;
  double averageTicketPrice = 0;  ///< 0 without a venue
  double expectedNet = 0;         ///< dollars, after what the label takes
};
TourTotals totalsOf(const GameState& state, const TourPlan& plan);

/// Dollars that the venue leaves after what the label takes, all its shows together.
double expectedNet(const GameState& state, const MusicTour& venue);

/// The door of tours. Refused without a label, and during the break after a tour.
Outcome goToTour(Game& game);

/// Opening the planner takes the next `tourId`, whether or not a tour comes of it, and draws demand where this launch
/// has none yet.
TourPlan beginTourPlan(Game& game);

/// The chosen venue of that id, or nullptr.
const MusicTour* plannedVenue(const TourPlan& plan, int64_t locationId);

/// In 100 of its seats, as the planner tells it: for the shows it was added with, or else would be now.
double demandPercent(const Game& game, const TourPlan& plan, const TourLocation& location);

/// What adding the venue now would put into the plan.
MusicTour venueFor(const Game& game, const TourPlan& plan, const TourLocation& location);
void addTourLocation(const Game& game, TourPlan& plan, int64_t locationId);
/// Takes it out with the figures it was added with.
void removeTourLocation(TourPlan& plan, int64_t locationId);

/// Takes a typed title, each word with a capital. Refused, and the title cleared, when it is empty or an earlier tour
/// has it.
Outcome nameTour(const GameState& state, TourPlan& plan, const std::string& typed);

/// A title nobody has used; another one for each throw.
std::string suggestedTourTitle(const GameState& state, uint64_t diceThrows);

/// Energy a week that is there for a tour.
int64_t energyForTour(const GameState& state);

/// Sets out. Refused, without a word, for no venue; with one for a title that is missing or taken, and for more energy
/// a week than there is. Nothing is paid here: the road takes its energy week by week.
Outcome startTour(Game& game, TourPlan& plan);

}  // namespace backbeat
