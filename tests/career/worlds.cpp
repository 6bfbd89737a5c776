#include "play/worlds.h"

#include "career/builders.h"
#include "music/builders.h"
#include "support/dates.h"

namespace backbeat {
namespace {

/// Six weeks before the end of a contract that still wants two songs and an EP.
void signedArtist(GameState& state) {
  setDate(state, 30);
  furnishCareer(state, 3, 8);
  state.totalCashAvailable = 80'000;
  state.totalEnergyAvailable = 400;
  ContractLabel contract = contractWith("Harbour Lights", 25, 31);
  contract.initialCash = 50'000;
  contract.numberOfSongs = 2;
  contract.numberOfEP = 1;
  contract.labelPercentageRate = 0.4;
  contract.labelStreamingRate = 0.004;
  signContract(state, contract);
}

void inDebt(GameState& state) {
  setDate(state, 51);  // the year turns soon
  furnishCareer(state, 1, 3);
  state.totalCashAvailable = -75'000;
  state.totalEnergyAvailable = 0;
  state.totalEnergyMax = 3;  // tired too: hardly anything can be paid for
  state.followerCount = -40;
}

const RoomWorlds worlds({{"in debt", inDebt}, {"signed", signedArtist}});

}  // namespace
}  // namespace backbeat
