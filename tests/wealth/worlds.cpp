#include "play/worlds.h"

#include "career/ledger.h"
#include "music/builders.h"
#include "support/dates.h"
#include "wealth/builders.h"
#include "wealth/property_catalogue.h"
#include "wealth/vehicle_catalogue.h"

namespace backbeat {
namespace {

/// Somebody known, with money, in the week that the calendar is set to.
void prosper(GameState& state, int64_t absoluteWeek, double cash) {
  setDate(state, absoluteWeek);
  furnishCareer(state, 4, 2);
  state.totalFans = 3'000'000;
  state.totalCashAvailable = cash;
  state.totalEnergyMax = 120;
  state.totalEnergyAvailable = 400;
}

/// Everything that was ever for sale, bought over the years while the market went from one end to the other.
void ownEveryHome(GameState& state, double first, double last) {
  double index = first;
  int64_t year = state.yearNumber - 13;
  for (const Property& property : properties) {
    ownHome(state, property.propertyId, index, year);
    index += (last - first) / static_cast<double>(properties.size());
    if (property.propertyId % 2 == 0) ++year;
  }
  state.realEstateIndex = last;
}

void landlord(GameState& state) {
  prosper(state, 900, 40'000'000);
  ownEveryHome(state, 0.51, 1.49);
}

void landlordInASlump(GameState& state) {
  prosper(state, 900, 9'000'000);
  ownEveryHome(state, 1.49, 0.51);
}

/// Rich, without a home, and driven about by somebody else's car.
void houseHunter(GameState& state) {
  prosper(state, 300, 20'000'000);
  state.realEstateIndex = 1.072;
  WeeklyLineItem lifestyle;
  lifestyle.title = "SPORTS CAR";
  lifestyle.amount = 450;
  lifestyle.year = state.yearNumber;
  lifestyle.isExpense = true;
  lifestyle.typeOfExpense = expense::transportation;
  lifestyle.energyBoost = 4;
  state.totalEnergyMax += lifestyle.energyBoost;
  state.saveAllWeeklyLineItems.append(lifestyle);
}

/// Two homes and a car, and no strength to see to them.
void wearyOwner(GameState& state) {
  prosper(state, 300, 3'000'000);
  state.totalEnergyMax = 60;
  state.totalEnergyAvailable = 60;
  ownHome(state, 5004, 0.93, state.yearNumber - 3);
  ownHome(state, 5012, 1.1, state.yearNumber - 1);
  ownVehicle(state, 7009, state.yearNumber - 3);
}

/// Every vehicle that there is. The oldest, of forty-one years, are a debt by now; the newest is this year's.
void fullGarage(GameState& state) {
  prosper(state, 52 * 41 + 9, 900'000'000);
  int64_t age = 41;
  for (const TransportationOption& option : vehicles) {
    ownVehicle(state, option.id, state.yearNumber - age);
    age = age > 2 ? age - 2 : 0;
  }
}

const RoomWorlds worlds({{"landlord", landlord},
                         {"landlord in a slump", landlordInASlump},
                         {"house hunter", houseHunter},
                         {"weary owner", wearyOwner},
                         {"full garage", fullGarage}});

}  // namespace
}  // namespace backbeat
