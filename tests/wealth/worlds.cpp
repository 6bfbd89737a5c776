#include "play/worlds.h"

#include "career/ledger.h"
#include "music/builders.h"
#include "support/dates.h"
#include "wealth/builders.h"
#include "wealth/property_catalogue.h"
#include "wealth/vehicle_catalogue.h"
#include "wealth/ventures.h"

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

void addStake(GameState& state, int64_t businessId, int64_t round, int64_t hasExited = venture_exit::running) {
  Venture venture = stakeIn(state, businessId, round);
  venture.hasExited = hasExited;
  if (hasExited != venture_exit::running) venture.timeUntilNextRaise = -1;
  if (hasExited == venture_exit::listed) venture.publicSharePrice = 41.5;
  state.saveAllVentureInvestments.append(venture);
}

/// A part of every startup that there is: each round, each way to end, and one that is about to go under.
void tenStartups(GameState& state) {
  prosper(state, 500, 30'000'000);
  addStake(state, 1, 0);
  addStake(state, 2, 1);
  addStake(state, 3, 2);
  addStake(state, 4, 3);
  addStake(state, 5, 3);
  addStake(state, 6, 0);
  addStake(state, 7, 3, venture_exit::acquired);
  addStake(state, 8, 3, venture_exit::listed);
  addStake(state, 9, 1, venture_exit::bankrupt);
  addStake(state, 10, 2, venture_exit::soldPrivately);
  state.saveAllVentureInvestments.update(1, [](Venture& doomed) { doomed.lastValuation = 990'000; });
  state.saveAllVentureInvestments.update(5, [](Venture& wanted) { wanted.timeUntilNextRaise = 0; });
  state.saveAllVentureInvestments.update(4, [](Venture& soaring) {
    soaring.lastValuation *= 4;
    soaring.news.emplace_back("KLOWN is on a roll.  up from $13.5M 🔼🎉");
  });
  state.biggestExit = 2'400'000;
}

/// Whose only startup looks for money, and who has none.
void poorInvestor(GameState& state) {
  prosper(state, 200, 900);
  addStake(state, 4, 0);
  state.saveAllVentureInvestments.update(0, [](Venture& venture) { venture.timeUntilNextRaise = 0; });
}

const RoomWorlds worlds({{"landlord", landlord},
                         {"landlord in a slump", landlordInASlump},
                         {"house hunter", houseHunter},
                         {"weary owner", wearyOwner},
                         {"full garage", fullGarage},
                         {"ten startups", tenStartups},
                         {"poor investor", poorInvestor}});

}  // namespace
}  // namespace backbeat
