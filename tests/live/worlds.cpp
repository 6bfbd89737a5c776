#include "play/worlds.h"
#include "career/builders.h"
#include "live/builders.h"
#include "music/builders.h"
#include "support/dates.h"

namespace backbeat {
namespace {

/// One show played, two venues to come, under a contract that takes its part.
void onTour(GameState& state) {
  setDate(state, 110);
  furnishCareer(state, 4, 6);
  state.totalFans = 300'000;
  state.totalCashAvailable = 90'000;
  state.totalEnergyAvailable = state.totalEnergyMax = 120;
  ContractLabel contract = contractWith("Still Water", 90, 190);
  contract.labelPercentageRate = 0.3;
  contract.tourTicketCost = 110;
  signContract(state, contract);
  MusicTour played = venueOnTour("Tabernacle", 0, 2'600);
  played.hasPerformed = true;
  played.grossRevenue = 375'000;
  putOnTour(state, {played, venueOnTour("Grand Ole Opry House", 2, 1'400), venueOnTour("Ryman Auditorium", 1, 3'100)},
            20);
  WeeklyTourSales sales;
  sales.tourId = state.tourId;
  sales.tourStadium = "Tabernacle";
  sales.tourLocation = "Georgia, USA";
  sales.tourRevenue = 70'000;
  sales.seatsSold = 2'500;
  sales.soldOut = 1;
  sales.weekNumber = state.weekNumber - 1;
  sales.yearNumber = state.yearNumber;
  state.saveAllWeeklyTourSales.append(sales);
}

/// Round the world for a label of one's own, with cheap tickets and towns that would rather stay at home.
void worldTour(GameState& state) {
  setDate(state, 300);
  furnishCareer(state, 6, 10);
  state.totalFans = 2'000'000;
  state.totalCashAvailable = 40'000'000;
  state.totalEnergyAvailable = state.totalEnergyMax = 200;
  state.isLabelLaunched = 1;
  state.myLabelName = "Kite Records";
  MusicTour prague = venueOnTour("Great Strahov Stadium", 1, 9'000);
  prague.tourLocationId = 0;
  prague.seatCapacity = 250'000;
  prague.ticketPrice = 54.5;
  MusicTour sydney = venueOnTour("Qudos Bank Arena", 3, -40);
  sydney.ticketPrice = 49.5;
  putOnTour(state, {prague, sydney}, 40);
}

/// A festival next week and one behind, songs for more than a set, and no tour in the way of another.
void festivalSeason(GameState& state) {
  setDate(state, 180);
  furnishCareer(state, 17, 4);
  state.totalFans = 900'000;
  state.totalCashAvailable = 60'000;
  state.totalEnergyAvailable = state.totalEnergyMax = 60;
  signContract(state, contractWith("Still Water", 100, 700));
  MusicTour old = venueOnTour("Ryman Auditorium", 0, 2'500);
  old.hasPerformed = true;
  putOnTour(state, {old}, 0);
  state.onTour = 0;
  Festival played = festivalIn(state, -9, "Meadow Days");
  played.reviewStars = 61;
  played.topReview = "Decent performance, shows potential but lacks memorable moments.";
  book(state, played);
  Festival next = festivalIn(state, 0, "Harbour Sounds");
  next.setListId = {firstWorldSong, firstWorldSong + 3};
  book(state, next);
}

const RoomWorlds worlds({{"on tour", onTour}, {"world tour", worldTour}, {"festival season", festivalSeason}});

}  // namespace
}  // namespace backbeat
