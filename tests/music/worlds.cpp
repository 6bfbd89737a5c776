#include "play/worlds.h"

#include "career/builders.h"
#include "music/builders.h"
#include "support/dates.h"

namespace backbeat {
namespace {

/// Ten years in: hits on the chart and one that left it, certified songs, a contract whose terms are met.
void midCareer(GameState& state) {
  setDate(state, 520);
  furnishCareer(state, 12, 30);
  state.totalFans = 6'000'000;
  state.totalCashAvailable = 2'500'000;
  state.totalEnergyAvailable = state.totalEnergyMax = 300;
  signContract(state, contractWith("Still Water", 470, 600));
  for (int64_t place = 0; place < 6; ++place) {
    const int64_t songId = firstWorldSong + 3 * place;
    putOnChart(state, songId, 1 + 4 * place, 30'000'000 - 2'000'000 * place);
    if (place == 5) takeOffChart(state, songId);
    const size_t position = state.saveAllSongList.find([&](const Song& song) { return song.songId == songId; });
    state.saveAllSongList.update(position, [&](Song& song) {
      song.totalListen = 150'000'000 * (place + 1);
      song.productionRating = 95;
    });
  }
}

/// Everything was long ago: the fame is there, and no song of the last years.
void hasBeen(GameState& state) {
  setDate(state, 400);
  furnishCareer(state, 2, 0);
  for (size_t i = 0; i < state.saveAllSongList.size(); ++i) {
    state.saveAllSongList.update(i, [](Song& song) {
      song.releaseWeek = 12;
      song.releaseYear = 2023;
    });
  }
  state.totalFans = 700'000;
  state.totalCashAvailable = 30'000;
  state.totalEnergyAvailable = state.totalEnergyMax = 90;
}

/// Fame and skill that keep a song about the last place of the chart once its first fire is out.
void star(GameState& state) {
  setDate(state, 260);
  furnishCareer(state, 2, 10);
  for (int64_t* skill : {&state.rhythm, &state.charisma, &state.vocalRange, &state.songWriting, &state.virality}) {
    *skill = 95;
  }
  state.totalFans = 48'000'000;
  state.totalCashAvailable = 500'000'000;
  state.totalEnergyAvailable = state.totalEnergyMax = 2'000;
}

const RoomWorlds worlds({{"mid-career", midCareer}, {"long ago", hasBeen}, {"star", star}});

}  // namespace
}  // namespace backbeat
