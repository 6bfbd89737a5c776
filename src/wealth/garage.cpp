#include "wealth/garage.h"

#include "career/ledger.h"
#include "career/lifestyle.h"
#include "core/calendar.h"
#include "core/money.h"
#include "core/purse.h"
#include "wealth/net_assets.h"

namespace backbeat {

namespace {

Outcome tooDear() { return noCash<"💰Not Enough Cash💰">("\nYou do not have enough capital to purchase this vehicle."); }

Transportation vehicleOf(const GameState& state, const TransportationOption& option) {
  Transportation vehicle;
  vehicle.title = option.title;
  vehicle.id = option.id;
  vehicle.pricePaid = option.salePrice;
  vehicle.economyIndex = state.realEstateIndex;
  vehicle.transportationType = option.transportationType;
  vehicle.weeklyCost = option.weeklyInsuranceCost;
  vehicle.imageName = option.imageName();
  vehicle.energyBonus = option.energyBonus;
  vehicle.yearPurchased = state.yearNumber;
  return vehicle;
}

}  // namespace

std::optional<size_t> vehiclePosition(const GameState& state, int64_t id) {
  const auto& owned = state.saveAllTransportationOwnedList;
  const size_t position = owned.find([&](const Transportation& vehicle) { return vehicle.id == id; });
  return position == owned.size() ? std::nullopt : std::optional(position);
}

int64_t insuranceCode(int64_t id) { return id - 2'000; }

int64_t garageEnergy(const GameState& state) {
  int64_t sum = 0;
  for (const Transportation& vehicle : state.saveAllTransportationOwnedList) sum += vehicle.energyBonus;
  return sum;
}

std::optional<Price> costOfSale(const GameState& state, const Transportation& vehicle) {
  const double value = estimateOf(state, vehicle);
  return value < 0 ? std::optional(Price{.dollars = -value}) : std::nullopt;
}

Outcome askToBuyVehicle(const GameState& state, const TransportationOption& option, Action confirmed) {
  if (vehiclePosition(state, option.id)) return {};
  if (!hasCash(state, costOf(option))) return tooDear();
  return ask<"💰For Sale💰">("\nThanks for your interest in this " + std::string(option.title) +
                               ". Please review the weekly insurance rates below:\n\nPrice\n" +
                               currency(option.salePrice) +
                               "\n\nWeekly Insurance: " + currency(option.weeklyInsuranceCost) +
                               "/wk\n\nVehicles, boats and planes depreciate over time based on length of ownership.",
                           "Cancel", {"Purchase?", std::move(confirmed), AlertButton::Style::normal});
}

Outcome buyVehicle(Game& game, const TransportationOption& option) {
  GameState& state = game.state;
  if (vehiclePosition(state, option.id)) return {};
  if (!hasCash(state, costOf(option))) return tooDear();
  pay(game, costOf(option));
  const LifestyleCategory& lifestyle = lifestyleCategories[expense::transportation];
  if (option.transportationType == vehicle::road && lifestyleEntry(state, lifestyle)) {
    clearLifestyleExpense(game, lifestyle);
  }
  addExpense(state, "Transportation Insurance", option.weeklyInsuranceCost, insuranceCode(option.id));
  state.saveAllTransportationOwnedList.append(vehicleOf(state, option));
  state.totalEnergyMax += option.energyBonus;
  game.save(&GameState::saveAllTransportationOwnedList, &GameState::saveAllWeeklyLineItems, &GameState::totalEnergyMax);
  stateChanged(game);
  return success();
}

Outcome askToSellVehicle(const GameState& state, int64_t id, Action confirmed) {
  const auto position = vehiclePosition(state, id);
  if (!position) return {};
  const Transportation& vehicle = state.saveAllTransportationOwnedList[*position];
  return ask<"💰Sell Vehicle💰">(
      "\nYou've owned your " + vehicle.title + " for " + std::to_string(state.yearNumber - vehicle.yearPurchased) +
          " year(s).\n\nPurchase Price\n" + currency(vehicle.pricePaid) + "\n\nCurrent Value\n" +
          currency(estimateOf(state, vehicle)) + "\n\nAre you sure you want to sell this vehicle?",
      "Cancel", {"Sell", std::move(confirmed), AlertButton::Style::destructive});
}

Outcome sellVehicle(Game& game, int64_t id) {
  GameState& state = game.state;
  const auto position = vehiclePosition(state, id);
  if (!position) return {};
  const Transportation sold = state.saveAllTransportationOwnedList[*position];
  const double value = estimateOf(state, sold);
  if (const std::optional<Price> cost = costOfSale(state, sold)) {
    pay(game, *cost);
  } else {
    earn(game, {.dollars = value});
  }
  state.saveAllTransportationOwnedList.erase(*position);
  removeEntry(state, insuranceCode(id));
  state.totalEnergyMax -= sold.energyBonus;
  game.save(&GameState::saveAllTransportationOwnedList, &GameState::saveAllWeeklyLineItems, &GameState::totalEnergyMax);
  stateChanged(game);
  return news<"🏁 Sold 🏁">("\nSomebody else has the keys to your " + sold.title +
                          (value < 0 ? " now. To be rid of it cost you " + currency(-value) + "."
                                     : " now, and you have " + currency(value) + "."));
}

Picture vehiclePicture(int64_t id, const std::string& title) {
  const TransportationOption* option = vehicleWithId(id);
  return drawn(Picture::Kind::object, option ? option->form : "sedan", title);
}

}  // namespace backbeat
