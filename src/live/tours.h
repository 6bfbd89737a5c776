// A tour under way: a show a week until it is done, and the rest after it.
#pragma once

#include <span>
#include <string>

#include "core/game.h"

namespace backbeat {

/// Step 4 of the turn: the tour's show of the week, and its end with the last one. Without a tour nothing happens; a
/// tour stands still while the artist has no label.
void runWeeklyTourShow(Game& game);

/// How the latest tour stands.
struct TourProgress {
  std::string tourTitle;
  size_t firstVenue = 0;                    ///< its venues in `saveAllMusicTourList` begin here and end the list
  std::span<const WeeklyTourSales> played;  ///< its shows so far
  int64_t showsLeft = 0;
  int64_t grossRevenue = 0;  ///< dollars
  double net = 0;            ///< dollars, after what the label took
  int64_t seatsSold = 0;     ///< at the shows so far
  int64_t seatsOffered = 0;  ///< at the same
  int64_t shows() const { return static_cast<int64_t>(played.size()) + showsLeft; }
};
TourProgress tourProgress(const GameState& state);

/// Whether anybody came who found no seat, or just enough.
inline bool soldOut(const MusicTour& venue) { return venue.seatsSold >= venue.seatCapacity; }

}  // namespace backbeat
