#include "play/worlds.h"

#include "core/new_game.h"
#include "music/builders.h"
#include "social/builders.h"
#include "support/dates.h"

namespace backbeat {
namespace {

void fresh(GameState&) {}

void rich(GameState& state) {
  setDate(state, 60);
  furnishCareer(state, 5, 20);
  state.totalFans = 25'000'000;
  state.totalCashAvailable = 900'000'000;
  state.totalEnergyAvailable = state.totalEnergyMax = 20'000;
}

/// Names and figures that go beyond what a line has room for.
void edges(GameState& state) {
  setDate(state, 200);
  furnishCareer(state, 4, 12);
  state.myArtistsName = "Maximiliana Rosalind Featherstonehaugh-Oyelaran 🎤 المغنية";
  state.totalCashAvailable = -98'765'432'109.87;
  state.totalFans = 9'876'543'210;
  state.totalEnergyAvailable = -35;
  state.followerCount = 4'321'098'765;
  addChirp(
      state,
      "Everything, everywhere, for everybody who ever listened to one note of it: thank you! " + std::string(160, 'o'),
      1);
}

const RoomWorlds worlds({{"edges", edges}, {"new", fresh}, {"restarted", rich, false, restartGame}, {"rich", rich}});

}  // namespace
}  // namespace backbeat
