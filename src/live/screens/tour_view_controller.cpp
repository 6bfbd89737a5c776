#include "live/screens/tour_view_controller.h"

#include <algorithm>
#include <cmath>

#include "core/money.h"
#include "core/view_words.h"
#include "live/show_money.h"

namespace backbeat {

namespace {

std::string shortDollars(double amount) { return (amount < 0 ? "-$" : "$") + abbreviated(std::abs(amount)); }

/// What the plan would come to in a sentence.
Text outlookOf(const TourTotals& totals) {
  if (totals.numberOfShows == 0) return caption("Choose where to play. Every figure below is known before you go.");
  const std::string amount = currency(std::abs(totals.expectedNet));
  const std::string weeks = counted(totals.weeksOnTour, "week");
  if (totals.expectedNet < 0) {
    return caption(weeks + " on the road would lose you " + amount + ". Fuller houses sell dearer tickets.", Tone::bad);
  }
  return caption(weeks + " on the road would leave you " + amount + " after what your label takes.", Tone::good);
}

Figures sumOf(const GameState& state, const TourTotals& totals) {
  const ShowTerms terms = showTerms(state);
  const int64_t left = energyForTour(state) - totals.energyCostToTour;
  Figures sum{
      .title = "What it comes to",
      .items = {
          {.label = "Average ticket", .value = price(totals.averageTicketPrice), .amount = totals.averageTicketPrice},
          {.label = "Your label's cost of a ticket",
           .value = price(terms.recordLabelTicketCost),
           .amount = terms.recordLabelTicketCost},
          {.label = "Your label's share of the rest",
           .value = withDecimals(terms.cut * 100, 0) + "%",
           .amount = std::nearbyint(terms.cut * 100)},
          {.label = "Tour Energy Left: ",
           .value = withCommas(left),
           .amount = static_cast<double>(left),
           .tone = left < 0 ? Tone::bad : Tone::plain}}};
  sum.total = Figure{.label = "Expected for you",
                     .value = currency(totals.expectedNet),
                     .amount = totals.expectedNet,
                     .dollars = true,
                     .tone = toneOfChange(totals.expectedNet)};
  return sum;
}

}  // namespace

Outcome TourViewController::open() {
  plan_ = beginTourPlan(game_);
  return {};
}

Outcome TourViewController::act(const Action& action) {
  if (action.id == "startTouringButton") return startTouringButton();
  if (action.id == "title") return nameTour(state(), plan_, action.value);
  if (action.id == "dice") plan_.tempTourTitle = suggestedTourTitle(state(), diceThrows_++);
  if (action.id == "showsPerVenue" && action.value == "1") increaseShowButton();
  if (action.id == "showsPerVenue" && action.value == "-1") decreaseShowButton();
  if (action.verb() == "venue") {
    const int64_t id = wholeNumber(action.argument()).value_or(-1);
    if (plannedVenue(plan_, id)) {
      removeTourLocation(plan_, id);
    } else {
      addTourLocation(game_, plan_, id);
    }
  }
  return {};
}

void TourViewController::increaseShowButton() { plan_.showsPerVenue += 1; }

void TourViewController::decreaseShowButton() {
  if (plan_.showsPerVenue > 1) plan_.showsPerVenue -= 1;
}

Outcome TourViewController::startTouringButton() { return startTour(game_, plan_); }

Row TourViewController::describe(const TourLocation& location) const {
  const MusicTour* chosen = plannedVenue(plan_, location.id);
  const MusicTour venue = chosen ? *chosen : venueFor(game_, plan_, location);
  const double percent = demandPercent(game_, plan_, location);
  Row row{.picture = drawn(Picture::Kind::object, location.form, location.name),
          .title = std::string(location.name),
          .subtitle = std::string(location.location) + " · " + withCommas(location.capacity) + "\n" +
                      price(venue.ticketPrice) + " · net " + shortDollars(expectedNet(state(), venue)),
          .value = percent > 100 ? "100%" : withDecimals(percent, 0) + "%",
          .note = percent > 100 ? "Oversubscribed" : "Est. Demand",
          .tone = toneOfBand(percent),
          // Said, and not taken: the road takes it week by week.
          .price = Price{.energy = showEnergy(location) * venue.numberOfShows, .charge = Charge{}},
          .share = std::clamp(percent / 100, 0.0, 1.0),
          .selected = chosen != nullptr,
          .id = "venue:" + std::to_string(location.id)};
  if (venue.numberOfShows >= 2) row.subtitle += " · " + counted(venue.numberOfShows, "show");
  return row;
}

/// What would be as good as full is met first; in each of both groups the venues keep their order.
void TourViewController::describeVenues(View& view) const {
  Rows full;
  Rows others;
  for (const TourLocation& location : tourLocations) {
    Row row = describe(location);
    (row.tone == Tone::good ? full : others).items.push_back(std::move(row));
  }
  const bool isSplit = !full.items.empty() && !others.items.empty();
  if (isSplit) view.add(caption("These you would fill, or nearly."));
  if (!full.items.empty()) view.add(std::move(full));
  if (isSplit) view.add(Heading{"Harder to fill"});
  if (!others.items.empty()) view.add(std::move(others));
}

View TourViewController::view() const {
  View view{.title = "Plan a Tour", .subtitle = plan_.tempTourTitle, .theme = Theme::live};
  view.add(TextField{.id = "title",
                     .label = "Tour title",
                     .value = plan_.tempTourTitle,
                     .placeholder = "Name your tour",
                     .suggest = "dice"});
  view.add(Stepper{.id = "showsPerVenue",
                   .label = "Shows per venue",
                   .value = std::to_string(plan_.showsPerVenue),
                   .note = "One show a week",
                   .canLess = plan_.showsPerVenue > 1});
  const TourTotals totals = totalsOf(state(), plan_);
  view.add(outlookOf(totals));
  view.add(Heading{"Venues · " + std::to_string(totals.numberOfShows) + " of " + std::to_string(tourLocationCount)});
  describeVenues(view);
  view.add(sumOf(state(), totals));
  const int64_t left = energyForTour(state()) - totals.energyCostToTour;
  view.totals = {
      {.label = "seats", .value = withCommas(totals.totalCapacity)},
      {.label = "avg ticket", .value = price(totals.averageTicketPrice)},
      {.label = "for you", .value = shortDollars(totals.expectedNet), .tone = toneOfChange(totals.expectedNet)},
      {.label = "a week, " + std::to_string(left) + " left",
       .value = std::to_string(totals.energyCostToTour),
       .tone = left < 0 ? Tone::bad : Tone::plain,
       .energy = true}};
  view.mainAction = Button{.id = "startTouringButton",
                           .label = "START TOURING",
                           .style = Button::Style::primary,
                           .tone = totals.numberOfShows == 0 ? Tone::locked : Tone::plain};
  view.help =
      Help{.title = "How tours work",
           .text =
               "A tour plays one show a week. Each venue shows how many of its seats would sell, the ticket price "
               "that follows from that, and what all its shows would leave you after your label's cost of each "
               "ticket and its share.\n\nDemand grows with your listeners and your skill; abroad, campaigns for your "
               "albums count as well. Several shows in one venue share its demand when the price is set.\n\nNothing is "
               "paid up front, but each week of the tour takes its energy, and you need about a year's rest after it."};
  return view;
}

}  // namespace backbeat
