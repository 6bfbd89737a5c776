#include "play/worlds.h"

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

const RoomWorlds worlds({{"ninety-ninth year", ninetyNinthYear, true}});

}  // namespace
}  // namespace backbeat
