#include "shell/simulate/wealth_habits.h"

#include <string>

#include "shell/simulate/habit_words.h"
#include "wealth/garage.h"
#include "wealth/real_estate.h"

namespace backbeat {

namespace {

constexpr size_t yes = 1;
constexpr int64_t weeksBetweenLooks = 13;

const Property* dearestHome(const GameState& state, double budget) {
  const Property* dearest = nullptr;
  for (const Property* home : listedProperties(state)) {
    if (home->salePrice <= budget && (!dearest || home->salePrice > dearest->salePrice)) dearest = home;
  }
  return dearest;
}

const TransportationOption* cheapestWithBonus(const GameState& state, double budget) {
  const TransportationOption* cheapest = nullptr;
  for (const TransportationOption& option : vehicles) {
    if (option.energyBonus < 1 || option.salePrice > budget || vehiclePosition(state, option.id)) continue;
    if (!cheapest || option.salePrice < cheapest->salePrice) cheapest = &option;
  }
  return cheapest;
}

}  // namespace

void placeCash(Player& player, const WealthHabit& habit, int64_t week) {
  if (week % weeksBetweenLooks != 0) return;
  buyHome(player, player.state().totalCashAvailable * habit.shareForAHome);
  buyVehicle(player, player.state().totalCashAvailable * habit.shareForAVehicle);
}

void buyHome(Player& player, double budget) {
  const Property* home = dearestHome(player.state(), budget);
  if (!home || !hasEnergy(player, costOf(*home).energy)) return;
  player.tab(businessTab);
  player.press("goToPropertyListing");
  player.tryPress("home:" + std::to_string(home->propertyId));  // unless it stands in front
  player.press("purchaseButton");
  player.answer(yes);
  player.settle();
}

void buyVehicle(Player& player, double budget) {
  const TransportationOption* vehicle = cheapestWithBonus(player.state(), budget);
  if (!vehicle) return;
  player.tab(businessTab);
  player.press("goToTransportationOptions");
  player.press("vehicle:" + std::to_string(vehicle->id));
  player.answer(yes);
  player.settle();
}

}  // namespace backbeat
