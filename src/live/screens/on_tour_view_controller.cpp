#include "live/screens/on_tour_view_controller.h"

#include <algorithm>
#include <cmath>

#include "career/touring.h"
#include "core/money.h"
#include "core/own_photo.h"
#include "core/view_words.h"
#include "live/screens/tour_stops.h"
#include "live/tours.h"

namespace backbeat {

namespace {

constexpr int64_t mostLamps = 20;
constexpr int64_t stopsBefore = 3;  ///< that a long route shows of what is behind

Poster headOf(const GameState& state, const TourProgress& tour, size_t next) {
  const auto done = static_cast<int64_t>(tour.played.size());
  Poster head{.pictures = {drawn(Picture::Kind::scene, "stage", tour.tourTitle), artistPicture(state)},
              .kicker = "Show " + std::to_string(done + 1) + " of " + std::to_string(tour.shows()),
              .title = tour.tourTitle,
              .text = (mayTour(state) ? "On stage this week at " : "Without a label the tour stands still before ") +
                      state.saveAllMusicTourList[next].stadium};
  head.meter = Meter{.label = "Shows played",
                     .value = std::to_string(done) + " of " + std::to_string(tour.shows()),
                     .share = shareOf(done, tour.shows()),
                     .steps = tour.shows() <= mostLamps ? tour.shows() : 0};
  return head;
}

Tiles salesOf(const GameState& state, const TourProgress& tour) {
  const double sold = shareOf(tour.seatsSold, tour.seatsOffered);
  const auto dollars = [](double amount) { return (amount < 0 ? "-$" : "$") + abbreviated(std::abs(amount)); };
  Tiles tiles{{{.icon = "cash",
                .label = "Gross so far",
                .value = dollars(static_cast<double>(tour.grossRevenue)),
                .note = dollars(tour.net) + " net",
                .tone = toneOfChange(tour.net)},
               {.icon = "ticket",
                .label = "Tickets",
                .value = withCommas(tour.seatsSold),
                .note = withDecimals(sold * 100, 0) + "% sold"},
               {.icon = "bolt", .label = "Energy", .value = std::to_string(state.onTourEnergyCost), .note = "a week"}}};
  if (tour.played.empty()) {
    tiles.items[0].note = "the first show pays";
    tiles.items[1].note = "none yet";
  }
  return tiles;
}

}  // namespace

Outcome OnTourViewController::open() {
  const TourProgress tour = tourProgress(state());
  const auto done = static_cast<int64_t>(tour.played.size());
  const auto stops = done + static_cast<int64_t>(state().saveAllMusicTourList.size() - firstVenueToCome(state()));
  if (stops > ListWindow::pageSize) route_.from = std::max(done - stopsBefore, int64_t{0});
  return {};
}

Outcome OnTourViewController::act(const Action& action) {
  if (action.id == "route") route_.moveTo(action.value);
  return {};
}

Rows OnTourViewController::routeOf(const TourProgress& tour) const {
  const RecordList<MusicTour>& venues = state().saveAllMusicTourList;
  const size_t next = firstVenueToCome(state());
  const size_t done = tour.played.size();
  const std::vector<int64_t> weeks = weeksToCome(state());
  Rows rows = windowedRows("route", route_, static_cast<int64_t>(done + venues.size() - next), [&](size_t stop) {
    if (stop < done) return playedStop(tour.played[stop]);
    return comingStop(venues[next + stop - done], weeks[stop - done], stop == done);
  });
  rows.style = Rows::Style::route;
  return rows;
}

View OnTourViewController::view() const {
  View view{.title = "On Tour", .theme = Theme::live};
  const size_t next = firstVenueToCome(state());
  if (state().onTour < 1 || next == state().saveAllMusicTourList.size()) {
    view.add(EmptyHint{.icon = "ticket", .text = "No tour is under way."});
    return view;
  }
  const TourProgress tour = tourProgress(state());
  view.add(headOf(state(), tour, next));
  view.add(salesOf(state(), tour));
  view.add(Heading{"The route"});
  view.add(routeOf(tour));
  view.help = Help{.title = "On tour",
                   .text =
                       "One show is played with each week that ends, and what it leaves after your label's part comes "
                       "with the week's report. There is no way back from a tour: it goes on until its last show."};
  return view;
}

}  // namespace backbeat
