#include "live/news.h"

#include <algorithm>
#include <cmath>

#include "career/skill.h"
#include "career/touring.h"
#include "core/money.h"
#include "core/week_rows.h"
#include "live/festivals.h"
#include "live/show_money.h"
#include "live/tour_plan.h"
#include "live/tours.h"

namespace backbeat {

namespace {

using Kind = News::Kind;

constexpr size_t showsToBeat = 3;

Picture pictureOf(const std::string& stadium) {
  for (const TourLocation& location : tourLocations) {
    if (location.name == stadium) return drawn(Picture::Kind::object, location.form, stadium);
  }
  return icon("ticket");
}

/// What the smallest house would leave, in a town that feels neither way. Demand itself is told by the planner alone.
void addTourNeed(const GameState& state, std::vector<Need>& needs) {
  if (!mayTour(state) || state.onTour != 0 || state.timeUntilNextTour >= 1) return;
  const TourLocation& house = tourLocations.back();
  const VenueOutlook outlook = venueOutlook(state, overallSkillRating(state), house, 0, 1);
  const int64_t seats = std::min(outlook.seatsSold, house.capacity);
  if (seats < 1 || netOfShow(showTerms(state), outlook.ticketPrice, seats) <= 0) return;
  const bool isFirst = state.saveAllMusicTourList.empty();
  needs.push_back({.priority = 165,
                   .picture = icon("ticket"),
                   .title = isFirst ? "You could go on tour" : "Your break is over",
                   .subtitle = "About " + withCommas(seats) + " would come to " + std::string(house.name),
                   .badge = "!",
                   .segue = "goToTourLocations"});
}

void addFestivalNeed(const GameState& state, std::vector<Need>& needs) {
  const size_t found = festivalOfWeek(state, {state.weekNumber, state.yearNumber});
  if (found == state.saveAllFestivalList.size()) return;
  const Festival& festival = state.saveAllFestivalList[found];
  needs.push_back(
      {.priority = 230,
       .picture = drawn(Picture::Kind::scene, "festival", festival.festivalName),
       .title = festival.festivalName + " is this week",
       .subtitle = withCommas(festival.audience) + " people, and " + currency(festival.payment) + " for you",
       .badge = "!",
       .segue = "goToFestivalArchive"});
}

/// "Paper Lanterns Tour, show 2 of 6"
std::string numberOf(const TourProgress& tour) {
  return tour.tourTitle + ", show " + std::to_string(tour.played.size()) + " of " + std::to_string(tour.shows());
}

void addShowNews(const GameState& state, const WeeklyTourSales& show, const TourProgress& tour,
                 std::vector<News>& news) {
  const RecordList<WeeklyTourSales>& shows = state.saveAllWeeklyTourSales;
  const size_t before = shows.size() - 1;  // the show is the latest
  const std::span<const WeeklyTourSales> earlier = shows.stretch(0, before);
  News told{.kind = Kind::reached,
            .rank = 520,
            .key = "show",
            .picture = pictureOf(show.tourStadium),
            .kicker = numberOf(tour),
            .headline = show.tourStadium,
            .text = show.tourLocation + ", every seat taken",
            .figure = withCommas(show.seatsSold)};
  if (show.soldOut == 1) {
    told.key = "sold out";
    told.stamp = "SOLD OUT";
    if (std::none_of(earlier.begin(), earlier.end(), [](const auto& each) { return each.soldOut == 1; })) {
      told.kind = Kind::first;
      told.rank = 560;
      told.kicker = "Your first sold-out show";
    }
    return news.push_back(std::move(told));
  }
  told.text = show.tourLocation + ", " + withCommas(show.seatsSold) + " people";
  const bool isBest = std::all_of(earlier.begin(), earlier.end(),
                                  [&](const WeeklyTourSales& each) { return each.seatsSold < show.seatsSold; });
  if (earlier.empty()) {
    told.kind = Kind::first;
    told.rank = 540;
    told.kicker = "Your first show";
  } else if (isBest && earlier.size() >= showsToBeat) {
    told.kind = Kind::best;
    told.rank = 330;
    told.key = "best show";
    told.kicker = "Your largest crowd so far";
  } else {
    return;
  }
  news.push_back(std::move(told));
}

void addEndOfTour(const GameState& state, const TourProgress& tour, std::vector<News>& news) {
  const std::string money = tour.net < 0 ? currency(-tour.net) + " lost" : currency(tour.net) + " for you";
  news.push_back({.kind = Kind::ended,
                  .rank = 430,
                  .key = "tour over",
                  .picture = icon("ticket"),
                  .kicker = "The last show is played",
                  .headline = tour.tourTitle + " is over",
                  .text = counted(static_cast<int64_t>(tour.played.size()), "show") + ", " +
                          withCommas(tour.seatsSold) + " tickets, " + money + ". Now rest for " +
                          counted(state.timeUntilNextTour, "week"),
                  .tone = tour.net < 0 ? Tone::warning : Tone::good});
}

void addFestivalNews(const GameState& state, CalendarWeek week, std::vector<News>& news) {
  const RecordList<Festival>& festivals = state.saveAllFestivalList;
  const size_t found = festivalOfWeek(state, week);
  if (found == festivals.size()) return;
  const Festival& festival = festivals[found];
  const auto playedBefore = [&](const Festival& each) { return each.id != festival.id && reviewed(each); };
  const bool isFirst = festivals.find(playedBefore) == festivals.size();
  const bool isGood = festivalStars(festival.reviewStars) >= 3;
  news.push_back({.kind = isFirst ? Kind::first : Kind::reached,
                  .rank = isFirst ? 530 : 340,
                  .key = "festival",
                  .picture = drawn(Picture::Kind::scene, "festival", festival.festivalName),
                  .kicker = isFirst ? "Your first festival" : "On the festival stage",
                  .headline = festival.festivalName + ": " + starText(festival),
                  .text = festival.topReview,
                  .tone = isGood ? Tone::good : Tone::warning});
}

}  // namespace

void addLiveNeeds(const Game& game, std::vector<Need>& needs) {
  addFestivalNeed(game.state, needs);
  addTourNeed(game.state, needs);
}

void addLiveNews(const Game& game, std::vector<News>& news) {
  const GameState& state = game.state;
  const CalendarWeek week = game.turn.before.week;
  const std::span<const WeeklyTourSales> shows = rowsOfWeek(state.saveAllWeeklyTourSales, week);
  if (!shows.empty()) {
    const TourProgress tour = tourProgress(state);
    addShowNews(state, shows.front(), tour, news);
    if (state.onTour == 0 && tour.showsLeft == 0) addEndOfTour(state, tour, news);
  }
  addFestivalNews(state, week, news);
}

}  // namespace backbeat
