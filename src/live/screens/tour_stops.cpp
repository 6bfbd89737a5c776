#include "live/screens/tour_stops.h"

#include <algorithm>

#include "career/touring.h"
#include "core/money.h"
#include "live/tour_dates.h"
#include "live/tours.h"

namespace backbeat {

namespace {

constexpr size_t datesShown = 5;

}  // namespace

Row playedStop(const WeeklyTourSales& show) {
  return {.title = show.tourStadium,
          .subtitle = showDate(show.weekNumber) + "\n" + show.tourLocation,
          .value = withCommas(show.seatsSold),
          .note = "sold",
          .tone = Tone::good,
          .badge = show.soldOut == 1 ? "SOLD OUT" : ""};
}

Row comingStop(const MusicTour& venue, int64_t week, bool isNext) {
  Row row{.title = venue.stadium,
          .subtitle = (isNext ? "This week" : showDate(week)) + "\n" + venue.location,
          .value = withCommas(std::clamp(venue.seatsSold, int64_t{0}, venue.seatCapacity)),
          .note = "of " + withCommas(venue.seatCapacity) + " Seats",
          .selected = isNext};
  if (venue.numberOfShows > 1) row.subtitle += " · " + counted(venue.numberOfShows, "show");
  return row;
}

std::vector<int64_t> weeksToCome(const GameState& state) {
  std::vector<int64_t> weeks = {state.weekNumber};
  for (size_t i = firstVenueToCome(state); i < state.saveAllMusicTourList.size(); ++i) {
    weeks.push_back(weeks.back() + state.saveAllMusicTourList[i].numberOfShows);
  }
  return weeks;
}

void addTourDates(View& view, const GameState& state) {
  const size_t next = firstVenueToCome(state);
  const size_t last = std::min(next + datesShown, state.saveAllMusicTourList.size());
  if (state.onTour < 1 || next >= last) return;
  const std::vector<int64_t> weeks = weeksToCome(state);
  view.add(Heading{"On tour"});
  Rows dates{.style = Rows::Style::route};
  for (size_t i = next; i < last; ++i) {
    Row date = comingStop(state.saveAllMusicTourList[i], weeks[i - next], i == next);
    date.value.clear();  // listeners see no ticket sales
    date.note.clear();
    dates.items.push_back(std::move(date));
  }
  view.add(std::move(dates));
}

}  // namespace backbeat
