#include "recognition/leaderboards.h"

#include "core/new_game.h"
#include "recognition/high_scores.h"

namespace backbeat {

namespace {

constexpr int64_t weeksBetweenPasses = 24;

/// Stores the score where it beats the kept one, and submits it. Nothing when there is no score.
void submit(Game& game, const Life& life, const HighScore& score) {
  const std::optional<int64_t> value = score.value(game);
  if (!value) return;
  int64_t& best = game.state.*score.best;
  if (score.told != HighScore::Told::byReport && *value > best) {
    best = *value;
    game.save(score.best);
  }
  const int64_t told = score.told == HighScore::Told::asItStands ? *value : best;
  game.platform.submitScore(life, {score.leaderboard, *value, told});
}

}  // namespace

void submitLeaderboards(Game& game) {
  GameState& state = game.state;
  if (game.launch.leaderboardPassDone || state.weekNumber % weeksBetweenPasses != 0) return;
  game.launch.leaderboardPassDone = true;
  numberCareer(game);
  const Life life{state.careerId, state.ageAtTakeover, state.myArtistsName};
  for (const HighScore& score : highScores()) submit(game, life, score);
}

}  // namespace backbeat
