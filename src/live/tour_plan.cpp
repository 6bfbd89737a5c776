#include "live/tour_plan.h"

#include <algorithm>
#include <array>

#include "career/skill.h"
#include "career/touring.h"
#include "core/calendar.h"
#include "core/case_folding.h"
#include "core/money.h"
#include "core/numbers.h"
#include "core/text.h"
#include "live/show_money.h"
#include "live/tour_dates.h"
#include "social/chirps.h"

namespace backbeat {

namespace {

constexpr double shareOfFans = 0.025;
constexpr double lowestTicketPrice = 50;
constexpr double ticketPriceOfDemand = 125;
constexpr size_t albumsForTitles = 4;

constexpr std::array<std::string_view, 12> tourTitles = {
    "The Long Road Tour", "Wide Awake Tour", "Lights Low Tour",      "Every City Tour",
    "No Sleep Tour",      "Loud And Clear",  "All The Way Home",     "Twelve Hours To Anywhere",
    "Front Row Tour",     "Last Train Tour", "Louder Together Tour", "The Encore Tour",
};

bool titleTaken(const GameState& state, const std::string& title) {
  const RecordList<MusicTour>& venues = state.saveAllMusicTourList;
  return venues.find([&](const MusicTour& venue) { return venue.tourTitle == title; }) != venues.size();
}

/// The first letter of each word in capitals; the rest stays as it was typed.
std::string withCapitals(const std::string& text) {
  std::string capitalised;
  bool wordBegins = true;
  for (size_t position = 0; position < text.size();) {
    std::string letter;
    appendCodePoint(letter, nextCodePoint(text, position));
    capitalised += wordBegins ? upperCase(letter) : letter;
    wordBegins = letter == " ";
  }
  return capitalised;
}

Outcome titleRefused() { return refuse<"🔥 Enter a Title 🔥">("\nEvery tour needs a unique title."); }

VenueOutlook outlookFor(const Game& game, const TourPlan& plan, const TourLocation& location, int64_t shows) {
  const int64_t demand = game.launch.venueDemand[static_cast<size_t>(location.id)];
  return venueOutlook(game.state, plan.overallRating, location, demand, shows);
}

Outcome refusedQuietly() {
  Outcome refusal;
  refusal.result = Result::refused;
  return refusal;
}

/// What the feed is told: each venue with the date of its first show.
std::string announcement(const GameState& state, const TourPlan& plan) {
  std::string text = "I'm excited to announce my highly anticipated " +
                     std::to_string(plan.potentialMusicTourList.size()) + "-city tour: " + plan.tempTourTitle +
                     "! Tour dates and locations below:\n";
  int64_t week = state.weekNumber;
  for (const MusicTour& venue : plan.potentialMusicTourList) {
    text += "\n" + showDate(week) + " | " + venue.location;
    week += venue.numberOfShows;
  }
  return text;
}

}  // namespace

VenueOutlook venueOutlook(const GameState& state, int64_t rating, const TourLocation& location, int64_t demand,
                          int64_t shows) {
  const bool isGlobal = location.type == TourLocation::Type::global;
  const int64_t reach = isGlobal ? (state.globalMarketingCampaigns + 2 * rating) / 3 : rating;
  const double rate = static_cast<double>(reach + demand);
  const double seats = static_cast<double>(state.totalFans) * shareOfFans * rate / 100;
  VenueOutlook outlook;
  outlook.percent = seats / static_cast<double>(location.capacity) * 100;
  if (shows >= 2) outlook.percent /= static_cast<double>(shows);
  outlook.ticketPrice = std::min(outlook.percent, 100.0) / 100 * ticketPriceOfDemand + lowestTicketPrice;
  outlook.seatsSold = truncate(seats);
  return outlook;
}

double expectedNet(const GameState& state, const MusicTour& venue) {
  return netOfShow(showTerms(state), venue.ticketPrice, std::min(venue.seatsSold, venue.seatCapacity)) *
         static_cast<double>(venue.numberOfShows);
}

TourTotals totalsOf(const GameState& state, const TourPlan& plan) {
  TourTotals totals;
  double totalTicketPrices = 0;
  for (const MusicTour& venue : plan.potentialMusicTourList) {
    totals.numberOfShows += 1;
    totals.totalCapacity += venue.seatCapacity * venue.numberOfShows;
    totals.energyCostToTour += showEnergy(*tourLocation(venue.tourLocationId)) * venue.numberOfShows;
    totals.weeksOnTour += venue.numberOfShows;
    totals.expectedNet += expectedNet(state, venue);
    totalTicketPrices += venue.ticketPrice;
  }
  if (totals.numberOfShows > 0) {
    totals.averageTicketPrice = totalTicketPrices / static_cast<double>(totals.numberOfShows);
  }
  return totals;
}

Outcome goToTour(Game& game) {
  const GameState& state = game.state;
  if (!mayTour(state)) {
    return refuse<"✍️ Get Signed First! ✍️">("\nYou need to be signed with a label to go on tour.");
  }
  if (state.onTour == 0 && state.timeUntilNextTour >= 1) {
    return refuse<"On Break!">("\nYou need a break from the stress of touring.\n\nYou can tour again in " +
                               std::to_string(state.timeUntilNextTour) + " weeks");
  }
  return success();
}

TourPlan beginTourPlan(Game& game) {
  game.state.tourId += 1;
  game.save(&GameState::tourId);
  drawVenueDemand(game);
  return {.tempTourTitle = game.state.myArtistsName + " | " + std::to_string(game.state.yearNumber),
          .overallRating = overallSkillRating(game.state)};
}

const MusicTour* plannedVenue(const TourPlan& plan, int64_t locationId) {
  const auto found = std::find_if(plan.potentialMusicTourList.begin(), plan.potentialMusicTourList.end(),
                                  [&](const MusicTour& venue) { return venue.tourLocationId == locationId; });
  return found == plan.potentialMusicTourList.end() ? nullptr : &*found;
}

double demandPercent(const Game& game, const TourPlan& plan, const TourLocation& location) {
  const MusicTour* chosen = plannedVenue(plan, location.id);
  return outlookFor(game, plan, location, chosen ? chosen->numberOfShows : plan.showsPerVenue).percent;
}

MusicTour venueFor(const Game& game, const TourPlan& plan, const TourLocation& location) {
  const VenueOutlook outlook = outlookFor(game, plan, location, plan.showsPerVenue);
  MusicTour venue;
  venue.tourId = game.state.tourId;
  venue.tourLocationId = location.id;
  venue.tourTitle = plan.tempTourTitle;
  venue.year = game.state.yearNumber;
  venue.week = game.state.weekNumberForTracking;
  venue.stadium = location.name;
  venue.location = location.location;
  venue.ticketPrice = outlook.ticketPrice;
  venue.seatsSold = outlook.seatsSold;
  venue.seatCapacity = location.capacity;
  venue.numberOfShows = plan.showsPerVenue;
  return venue;
}

void addTourLocation(const Game& game, TourPlan& plan, int64_t locationId) {
  const TourLocation* location = tourLocation(locationId);
  if (!location || plannedVenue(plan, locationId)) return;
  plan.potentialMusicTourList.push_back(venueFor(game, plan, *location));
}

void removeTourLocation(TourPlan& plan, int64_t locationId) {
  std::erase_if(plan.potentialMusicTourList,
                [&](const MusicTour& venue) { return venue.tourLocationId == locationId; });
}

Outcome nameTour(const GameState& state, TourPlan& plan, const std::string& typed) {
  const std::string title = withCapitals(trimmed(typed));
  plan.tempTourTitle.clear();
  if (title.empty() || titleTaken(state, title)) return titleRefused();
  plan.tempTourTitle = title;
  return success();
}

std::string suggestedTourTitle(const GameState& state, uint64_t diceThrows) {
  std::vector<std::string> titles;
  for (size_t i = state.saveAllAlbumList.size(); i-- > 0 && titles.size() < albumsForTitles;) {
    const Album& album = state.saveAllAlbumList[i];
    if (album.isReleased && album.albumId != 0) titles.push_back(withCapitals(trimmed(album.title)) + " Tour");
  }
  titles.insert(titles.end(), tourTitles.begin(), tourTitles.end());
  std::erase_if(titles, [&](const std::string& title) { return titleTaken(state, title); });
  if (titles.empty()) return state.myArtistsName + " " + std::to_string(state.tourId);
  return titles[diceThrows % titles.size()];
}

int64_t energyForTour(const GameState& state) {
  return state.totalEnergyMax -
         (state.weeklyEnergyCost + state.openLabelEnergyCost + state.merchEnergyCost + state.childEnergyCost);
}

Outcome startTour(Game& game, TourPlan& plan) {
  GameState& state = game.state;
  if (plan.potentialMusicTourList.empty() || state.onTour != 0) return refusedQuietly();
  if (plan.tempTourTitle.empty() || titleTaken(state, plan.tempTourTitle)) {
    plan.tempTourTitle.clear();
    return titleRefused();
  }
  const int64_t energy = totalsOf(state, plan).energyCostToTour;
  const int64_t available = energyForTour(state);
  if (energy > available) {
    return noEnergy<"⚡️Not Enough Energy⚡️">(
        "\nThe weekly energy cost of this tour exceeds your available energy:\n\nMAX: " + std::to_string(available) +
        "\nWEEKLY DEDUCTION: " + std::to_string(energy) + "\n\nRemove shows to lower your cost.");
  }
  for (MusicTour& venue : plan.potentialMusicTourList) {
    venue.tourTitle = plan.tempTourTitle;
    state.saveAllMusicTourList.append(venue);
  }
  state.onTourEnergyCost = energy;
  state.onTour = 1;
  game.save(&GameState::saveAllMusicTourList, &GameState::onTourEnergyCost, &GameState::onTour);
  postChirpForArtist(game, announcement(state, plan), state.followerCount);
  stateChanged(game);
  return successAndClose();
}

}  // namespace backbeat
