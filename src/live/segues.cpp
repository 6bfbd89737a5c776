#include "live/segues.h"

#include "career/touring.h"
#include "core/money.h"
#include "live/news.h"
#include "live/screens/choose_set_list_view_controller.h"
#include "live/screens/festival_archive_view_controller.h"
#include "live/screens/festival_invite_view_controller.h"
#include "live/screens/on_tour_view_controller.h"
#include "live/screens/tour_stops.h"
#include "live/screens/tour_view_controller.h"
#include "live/tour_plan.h"
#include "live/tours.h"

namespace backbeat {

namespace {

using enum Segue::Presentation;

constexpr Segue segues[] = {
    {"goToTourLocations", "TourViewController", push, makeScreen<TourViewController>, goToTour},
    {"goToTourDetails", "OnTourViewController", push, makeScreen<OnTourViewController>, goToTour},
    {"goToFestivalInvite", "FestivalInviteViewController", modal, makeScreen<FestivalInviteViewController>},
    {"goToChooseSetList", "ChooseSetListViewController", modal, makeScreen<ChooseSetListViewController>},
    {"goToFestivalArchive", "FestivalArchiveViewController", push, makeScreen<FestivalArchiveViewController>},
};

bool isOnTour(const Game& game) { return game.state.onTour != 0; }
bool isAtHome(const Game& game) { return !isOnTour(game); }

void describePlanning(const Game& game, Row& row) {
  if (!mayTour(game.state)) {
    row.subtitle = "For artists with a label";
  } else if (game.state.timeUntilNextTour >= 1) {
    row.subtitle = "On a break for " + counted(game.state.timeUntilNextTour, "week");
  }
}

void describeTour(const Game& game, Row& row) {
  const GameState& state = game.state;
  const TourProgress tour = tourProgress(state);
  const size_t next = firstVenueToCome(state);
  if (next == state.saveAllMusicTourList.size()) return;
  row.subtitle = state.saveAllMusicTourList[next].stadium;
  row.value = std::to_string(tour.played.size() + 1) + " of " + std::to_string(tour.shows());
  row.note = "this week";
}

void describeFestivals(const Game& game, Row& row) {
  const size_t festivals = game.state.saveAllFestivalList.size();
  if (festivals == 0) return;
  row.value = std::to_string(festivals);
  row.note = "so far";
}

constexpr MenuLine planning(TabNumber tab) {
  return {.tab = tab,
          .section = "On stage",
          .order = 210,
          .icon = "ticket",
          .title = "Tour",
          .subtitle = "26 venues, a show a week",
          .segue = "goToTourLocations",
          .id = "goToTour",
          .shown = isAtHome,
          .describe = describePlanning};
}

constexpr MenuLine underWay(TabNumber tab) {
  return {.tab = tab,
          .section = "On stage",
          .order = 210,
          .icon = "ticket",
          .title = "On Tour",
          .segue = "goToTourDetails",
          .id = "goToTour",
          .shown = isOnTour,
          .describe = describeTour};
}

constexpr MenuLine archive(TabNumber tab) {
  return {.tab = tab,
          .section = "On stage",
          .order = 220,
          .icon = "star",
          .title = "Festivals",
          .subtitle = "Invitations come with the week's chances",
          .segue = "goToFestivalArchive",
          .describe = describeFestivals};
}

constexpr MenuLine menu[] = {
    planning(musicTab), underWay(musicTab), archive(musicTab), planning(businessTab), underWay(businessTab),
};

void addToProfile(const Game& game, View& view) { addTourDates(view, game.state); }

}  // namespace

const Room liveRoom = {.name = "live",
                       .segues = segues,
                       .menu = menu,
                       .addNeeds = addLiveNeeds,
                       .addNews = addLiveNews,
                       .addToProfile = addToProfile};

}  // namespace backbeat
