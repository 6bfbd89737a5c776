#include "recognition/leaderboards.h"

#include <algorithm>
#include <optional>

#include "core/numbers.h"

namespace backbeat {

namespace {

constexpr int64_t weeksBetweenPasses = 24;

template <class T>
std::optional<int64_t> greatest(const RecordList<T>& list, int64_t T::*member) {
  if (list.empty()) return std::nullopt;
  const auto found =
      std::max_element(list.begin(), list.end(), [&](const T& a, const T& b) { return a.*member < b.*member; });
  return (*found).*member;
}

/// Stores the score where it beats the kept one, and submits the kept one. Nothing when there is no score.
void submit(Game& game, std::string_view leaderboard, int64_t GameState::*highScore, std::optional<int64_t> score) {
  if (!score) return;
  if (*score > game.state.*highScore) {
    game.state.*highScore = *score;
    game.save(highScore);
  }
  game.platform.submitScore(leaderboard, game.state.*highScore);
}

/// The listeners as they are today, up or down; their highest is only remembered.
void submitListeners(Game& game) {
  GameState& state = game.state;
  if (state.totalFans > state.totalFanHighScore) {
    state.totalFanHighScore = state.totalFans;
    game.save(&GameState::totalFanHighScore);
  }
  game.platform.submitScore("MONTHLYLISTENERS", state.totalFans);
}

std::optional<int64_t> numberOnes(const GameState& state) {
  const RecordList<BillboardSong>& rows = state.saveAllBillboardSongList;
  if (rows.empty()) return std::nullopt;
  return std::count_if(rows.begin(), rows.end(), [](const BillboardSong& row) { return row.peakPosition == 1; });
}

/// What the best album week that still stands in the records brought in, whole dollars.
std::optional<int64_t> highestGrossingWeek(const GameState& state) {
  const RecordList<WeeklyAlbumSales>& weeks = state.saveAllWeeklyAlbumSales;
  if (state.saveAllAlbumList.empty() || weeks.empty()) return std::nullopt;
  double best = 0;
  for (const WeeklyAlbumSales& week : weeks) best = std::max(best, week.albumRevenue);
  return truncate(best);
}

std::optional<int64_t> awardsWon(const GameState& state) {
  const RecordList<Award>& awards = state.saveAllMusicAwards;
  if (awards.empty()) return std::nullopt;
  return std::count_if(awards.begin(), awards.end(), [](const Award& award) { return award.isWinner >= 1; });
}

std::optional<int64_t> achievements(const GameState& state) {
  if (state.AllCompletedAchievements.empty()) return std::nullopt;
  return static_cast<int64_t>(state.AllCompletedAchievements.size());
}

}  // namespace

void submitLeaderboards(Game& game) {
  GameState& state = game.state;
  if (game.launch.leaderboardPassDone || state.weekNumber % weeksBetweenPasses != 0) return;
  game.launch.leaderboardPassDone = true;
  submitListeners(game);
  submit(game, "MOSTPOPULARSONG", &GameState::mostPopularSongHighScore,
         greatest(state.saveAllSongList, &Song::totalListen));
  submit(game, "MOSTPOPULARALBUM", &GameState::mostPopularAlbumHighScore,
         greatest(state.saveAllAlbumList, &Album::albumsSold));
  submit(game, "MOSTWEEKONCHART", &GameState::longestBillBoardHitHighScore,
         greatest(state.saveAllBillboardSongList, &BillboardSong::weeksOnChart));
  submit(game, "MOSTNUMBER1", &GameState::mostNumberOneHighScore, numberOnes(state));
  submit(game, "HIGHESTGROSSALBUMWK", &GameState::highestGrossAlbumWeekly, highestGrossingWeek(state));
  if (state.isLabelLaunched >= 1) {
    submit(game, "BESTRECORDLABEL", &GameState::mostSuccessfulLabelHighScore, state.mostSuccessfulLabelHighScore);
  }
  submit(game, "MOSTGRAMWINS", &GameState::mostGramWins, awardsWon(state));
  submit(game, "MOSTACHIEVEMENTS", &GameState::mostAchievementsCompleted, achievements(state));
}

}  // namespace backbeat
