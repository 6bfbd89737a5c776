#include "play/worlds.h"

#include <string>

#include "music/builders.h"
#include "social/builders.h"
#include "support/dates.h"

namespace backbeat {
namespace {

/// More posts than two pages of the feed hold, the last one pinned, one that announces a song in production; a photo
/// that stands for the artist everywhere.
void talkative(GameState& state) {
  setDate(state, 90);
  furnishCareer(state, 2, 4);
  state.followerCount = 1'200'000;
  state.assignFollowers = 1;
  state.totalEnergyAvailable = 100;
  state.twitterProfileImage =
      "data:image/png;base64,iVBORw0KGgoAAAANSUhEUgAAAAEAAAABCAYAAAAfFcSJAAAADUlEQVR42mNk+M9QDwADhgGAWjR9awAAAABJRU5Erk"
      "Jggg==";
  for (int64_t number = 150; number > 0; --number) addChirp(state, "Day " + std::to_string(151 - number), number / 2);
  state.saveAllChirpList.update(0, [](Chirp& chirp) { chirp.isPinned = 1; });
  state.saveAllChirpList.update(1, [&](Chirp& chirp) { chirp.songId = state.songId; });
}

const RoomWorlds worlds({{"talkative", talkative}});

}  // namespace
}  // namespace backbeat
