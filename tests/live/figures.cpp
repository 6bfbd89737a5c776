#include <algorithm>
#include <cmath>

#include "career/skill.h"
#include "core/money.h"
#include "live/builders.h"
#include "live/festival_invitation.h"
#include "live/festivals.h"
#include "live/tour_dates.h"
#include "live/tour_plan.h"
#include "music/builders.h"
#include "music/figures.h"
#include "play/figures.h"

namespace backbeat {

namespace {

constexpr double ticketCost = 125;  // of the label of one's own

std::string shortDollars(double amount) { return (amount < 0 ? "-$" : "$") + abbreviated(std::abs(amount)); }

/// What a venue would bring with one show, told from the state alone.
struct Venue {
  double percent;
  double ticket;
  double net;
};
Venue venueIn(const Game& game, const TourLocation& location) {
  const GameState& state = game.state;
  const int64_t skill = overallSkillRating(state);
  const bool isGlobal = showEnergy(location) == 10;
  const int64_t rate = (isGlobal ? (state.globalMarketingCampaigns + 2 * skill) / 3 : skill) +
                       game.launch.venueDemand[static_cast<size_t>(location.id)];
  const double seats = static_cast<double>(state.totalFans) * 0.025 * static_cast<double>(rate) / 100;
  const double share = std::min(seats / static_cast<double>(location.capacity), 1.0);
  const double ticket = 50 + 125 * share;
  return {seats / static_cast<double>(location.capacity) * 100, ticket,
          std::trunc(std::min(seats, static_cast<double>(location.capacity))) * (ticket - ticketCost)};
}

Standings plannerFigures(Game& twin) {
  beginTourPlan(twin);
  const GameState& state = twin.state;
  Standings standings;
  for (const TourLocation& location : tourLocations) {
    const Venue venue = venueIn(twin, location);
    const std::string where(location.name);
    const bool isFull = venue.percent > 100;
    standings.push_back({where, isFull ? "100%" : withDecimals(venue.percent, 0) + "%"});
    standings.push_back({where + ": note", isFull ? "Oversubscribed" : "Est. Demand"});
    standings.push_back({where + ": subtitle", std::string(location.location) + " · " + withCommas(location.capacity) +
                                                   "\n" + price(venue.ticket) + " · net " + shortDollars(venue.net)});
    standings.push_back({where + ": price", priceText({showEnergy(location), 0})});
    standings.push_back({where + ": share", shareText(std::min(venue.percent / 100, 1.0))});
  }
  const Venue ryman = venueIn(twin, tourLocations[25]);
  const int64_t energyLeft = state.totalEnergyMax - 5 - state.weeklyEnergyCost - state.openLabelEnergyCost -
                             state.merchEnergyCost - state.childEnergyCost;
  const std::string left = std::to_string(energyLeft);
  return standings + Standings{{"subtitle", "Mara Voss | 2049"},
                               {"Tour title", "Mara Voss | 2049"},
                               {"Shows per venue", "1"},
                               {"text", "1 week on the road would leave you " + currency(ryman.net) +
                                            " after what your label takes."},
                               {"heading", "Venues · 1 of 26"},
                               {"Average ticket", price(ryman.ticket)},
                               {"Your label's cost of a ticket", price(ticketCost)},
                               {"Your label's share of the rest", "0%"},
                               {"Tour Energy Left: ", withCommas(energyLeft)},
                               {"Expected for you", currency(ryman.net)},
                               {"seats", "2,500"},
                               {"avg ticket", price(ryman.ticket)},
                               {"for you", shortDollars(ryman.net)},
                               {"a week, " + left + " left", "5"}};
}

void playTwoShows(Game& game) {
  GameState& state = game.state;
  state.onTourEnergyCost = 37;
  std::vector<MusicTour> venues = {venueOnTour("Tabernacle", 0, 2'600), venueOnTour("Hollywood Bowl", 0, 1'203),
                                   venueOnTour("Ryman Auditorium", 2, 1'811), venueOnTour("Red Rocks", 1, 2'777)};
  venues[0].hasPerformed = venues[1].hasPerformed = true;
  venues[0].grossRevenue = 375'019;
  venues[1].grossRevenue = 180'450;
  putOnTour(state, venues, 37);
  for (size_t i = 0; i < 2; ++i) {
    WeeklyTourSales show;
    show.tourId = state.tourId;
    show.tourStadium = venues[i].stadium;
    show.tourLocation = venues[i].location;
    show.tourRevenue = i == 0 ? 62'500 : -1'250;
    show.seatsSold = i == 0 ? 2'500 : 1'203;
    show.soldOut = i == 0 ? 1 : 0;
    show.weekNumber = 34 + static_cast<int64_t>(i);
    show.yearNumber = state.yearNumber;
    state.saveAllWeeklyTourSales.append(show);
  }
}

Standings onTourFigures(Game&) {
  return {{"poster: kicker", "Show 3 of 5"},
          {"Shows played", "2 of 5"},
          {"Shows played: share", shareText(2.0 / 5)},
          {"Gross so far", "$555K"},
          {"Gross so far: note", "$61K net"},
          {"Tickets", "3,703"},
          {"Tickets: note", withDecimals(3'703 / 50.0, 0) + "% sold"},
          {"Energy", "37"},
          {"Tabernacle", "2,500"},
          {"Tabernacle: subtitle", showDate(34) + "\nTennessee, USA"},
          {"Tabernacle: badge", "SOLD OUT"},
          {"Hollywood Bowl", "1,203"},
          {"Hollywood Bowl: subtitle", showDate(35) + "\nTennessee, USA"},
          {"Ryman Auditorium", "1,811"},
          {"Ryman Auditorium: subtitle", "This week\nTennessee, USA · 2 shows"},
          {"Ryman Auditorium: note", "of 2,500 Seats"},
          {"Red Rocks", "2,500"},
          {"Red Rocks: subtitle", showDate(38) + "\nTennessee, USA"},
          {"Red Rocks: note", "of 2,500 Seats"}};
}

Standings inviteFigures(Game& twin) {
  const FestivalInvitation invitation = drawFestivalInvitation(twin);
  std::string genres;
  for (const std::string_view genre : invitation.genres) {
    if (!genre.empty()) genres += (genres.empty() ? " · " : ", ") + std::string(genre);
  }
  const size_t place = static_cast<size_t>(std::find(invitation.acts.begin(), invitation.acts.end(), "Mara Voss") -
                                           invitation.acts.begin() + 1);
  const char* ending = place == 1 ? "st" : place == 2 ? "nd" : place == 3 ? "rd" : "th";
  const int64_t weeks = invitation.festivalWeekForTracking - twin.state.weekNumberForTracking;
  return {
      {"bill: kicker", "INVITATION"},
      {"bill: text", invitation.location + " · " + dayOfWeek({invitation.festivalWeekNumber, invitation.festivalYear}) +
                         genres + "\nEst. " + withCommas(invitation.saveAudience) + " in attendence"},
      {"Your fee", currency(invitation.savePayment)},
      {invitation.saveCanHeadline ? "Headliner" : "General Lineup", std::to_string(place) + ending + " of 20"},
      {"In", counted(weeks, "week")},
      {"Set list", "0 of 15", "goToChooseSetList"}};
}

Standings setListFigures(Game& twin) {
  Standings standings = {{"title", "SET LIST (1)"}, {"songs", "1 of 15"}};
  for (const Song& song : twin.state.saveAllSongList) {
    if (!song.isReleased) continue;
    standings.push_back({song.title, withDecimals(song.productionRating, 0)});
    standings.push_back({song.title + ": note", song.title == "Glass Harbour" ? "No. 1" : "rating"});
  }
  const double rating = songTitled(twin.state, "Glass Harbour").productionRating;
  return standings + Standings{{"Average rating", withDecimals(rating, 0)},
                               {"Average rating: share", shareText(rating / 100)},
                               {"average", withDecimals(rating, 0)}};
}

/// Both festivals of the world lie ahead, since their weeks are numbers of their own.
Standings archiveFigures(Game& twin) {
  Standings standings;
  for (const Festival& festival : twin.state.saveAllFestivalList) {
    standings.push_back({festival.festivalName + ": note", currency(festival.payment)});
    standings.push_back({festival.festivalName + ": subtitle",
                         "In " + counted(festival.weekNumberForTracking - twin.state.weekNumberForTracking, "week")});
  }
  const Festival& next = twin.state.saveAllFestivalList[0];
  return standings + Standings{{"bill", next.festivalName},
                               {"bill: kicker", "Week 35, 2049"},
                               {"bill: text", withCommas(next.audience) + " expected"},
                               {"text", "“" + next.topReview + "”"},
                               {"Your fee", currency(next.payment)}};
}

/// The same, when both are behind.
Standings pastFigures(Game& twin) {
  Standings standings;
  for (const Festival& festival : twin.state.saveAllFestivalList) {
    standings.push_back({festival.festivalName, starText(festival)});
    standings.push_back({festival.festivalName + ": note", currency(festival.payment)});
    standings.push_back({festival.festivalName + ": subtitle",
                         std::to_string(twin.state.weekNumberForTracking - festival.weekNumberForTracking) +
                             " Weeks Ago · " + withCommas(festival.audience) + " Attended"});
  }
  const Festival& latest = twin.state.saveAllFestivalList[1];
  return standings + Standings{{"bill", latest.festivalName},
                               {"bill: kicker", "Week 36, 2049"},
                               {"bill: text", withCommas(latest.audience) + " Attended"},
                               {"Your fee", currency(latest.payment)},
                               {"Review", starText(latest)}};
}

std::vector<ScreenFigures> screens() {
  return {
      {.segue = "goToTourLocations", .figures = plannerFigures, .presses = {{"venue:25"}}},
      {.segue = "goToTourDetails", .figures = onTourFigures, .before = playTwoShows},
      {.segue = "goToFestivalInvite", .figures = inviteFigures},
      {.segue = "goToChooseSetList", .figures = setListFigures, .presses = {{"song:15"}}},
      {.segue = "goToFestivalArchive", .figures = archiveFigures, .noFigures = {"act*"}},
      {.segue = "goToFestivalArchive",
       .figures = pastFigures,
       .before = [](Game& game) { game.state.weekNumberForTracking += 20'000; },
       .noFigures = {"act*"}},
  };
}

const FiguresOf live{.screens = screens};

}  // namespace

}  // namespace backbeat
