#include "play/worlds.h"

#include "career/ledger.h"
#include "music/builders.h"
#include "support/dates.h"

namespace backbeat {
namespace {

/// A whole life of work, a few weeks before its last year but one ends.
void ninetyNinthYear(GameState& state) {
  setDate(state, 98 * 52 + 45);
  furnishCareer(state, 30, 60);
  state.totalFans = 80'000'000;
  state.totalCashAvailable = 3e9;
  state.totalEnergyMax = 25;
  state.totalEnergyAvailable = 900;
}

/// A job that does not pay for the way of life, and ends soon.
void workingPoor(GameState& state) {
  setDate(state, 60);
  furnishCareer(state, 1, 2);
  state.totalCashAvailable = 900;
  state.weeklyJobIncome = 300;
  state.weeklyJobContractRemaining = 3;
  WeeklyLineItem chef;
  chef.title = "House Chef";
  chef.amount = 500;
  chef.isExpense = true;
  chef.typeOfExpense = expense::food;
  state.saveAllWeeklyLineItems.append(chef);
}

const RoomWorlds worlds({{"ninety-ninth year", ninetyNinthYear, true}, {"working poor", workingPoor}});

}  // namespace
}  // namespace backbeat
