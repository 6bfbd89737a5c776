#include "core/new_game.h"

#include "core/calendar.h"
#include "core/random.h"

namespace backbeat {

void endLives(Game& game, Lifetime last) {
  static const GameState fresh;
  GameState& state = game.state;
  for (const Scalar& scalar : scalars) {
    if (scalar.lifetime > last) continue;
    std::visit([&](auto member) { state.*member = fresh.*member; }, scalar.member);
    game.saveFile.writeScalar(state, scalar);
  }
  forEachField<GameState>([&](const auto& list) {
    if (list.lifetime > last) return;
    (state.*list.member).clear();
    game.saveFile.writeList(list.key, state.*list.member);
  });
}

void forgetLaunch(Game& game) {
  const Launch before = game.launch;
  game.launch = Launch();
  game.turn = Turn();
  game.launch.leaderboardPassDone = before.leaderboardPassDone;
  game.launch.musicScreenLoaded = before.musicScreenLoaded;
  game.launch.venueDemand = before.venueDemand;
  game.launch.achievementsToTell = before.achievementsToTell;
  game.launch.awaitedPacks = before.awaitedPacks;
}

void numberCareer(Game& game) {
  constexpr uint64_t mostCareers = 999'999'999'999;
  GameState& state = game.state;
  if (state.careerId != 0) return;
  const std::string hour = std::to_string(game.clock.now().seconds);
  state.careerId = static_cast<int64_t>(hashOf(hour + state.myArtistsName) % mostCareers) + 1;
  game.save(&GameState::careerId);
}

void restartGame(Game& game) {
  GameState& state = game.state;
  const int64_t assisted = state.permanentEnergyUpgrade > 0 ? state.assisted : 0;
  endLives(game, Lifetime::family);
  state.assisted = assisted;
  state.totalEnergyMax += state.permanentEnergyUpgrade;
  state.totalEnergyAvailable = state.totalEnergyMax;
  game.save(&GameState::assisted, &GameState::totalEnergyAvailable, &GameState::totalEnergyMax);
  forgetLaunch(game);
  stateChanged(game);
}

}  // namespace backbeat
