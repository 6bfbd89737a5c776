#include "recognition/high_scores.h"

#include <algorithm>
#include <array>

#include "core/most.h"
#include "core/numbers.h"
#include "label/accounts.h"

namespace backbeat {

namespace {

template <class T, class Number>
std::optional<int64_t> most(const RecordList<T>& list, Number T::*member) {
  const T* record = recordWithMost(list, member);
  return record ? std::optional<int64_t>(truncate(static_cast<double>(record->*member))) : std::nullopt;
}

template <class T, class Number>
std::string nameOfMost(const RecordList<T>& list, Number T::*member, std::string T::*name) {
  const T* record = recordWithMost(list, member);
  return record ? record->*name : "";
}

template <class T, class Counts>
std::optional<int64_t> count(const RecordList<T>& list, Counts counts) {
  if (list.empty()) return std::nullopt;
  return std::count_if(list.begin(), list.end(), counts);
}

std::optional<int64_t> listeners(Game& game) { return game.state.totalFans; }
std::optional<int64_t> songPlays(Game& game) { return most(game.state.saveAllSongList, &Song::totalListen); }
std::optional<int64_t> albumUnits(Game& game) { return most(game.state.saveAllAlbumList, &Album::albumsSold); }
std::optional<int64_t> chartWeeks(Game& game) {
  return most(game.state.saveAllBillboardSongList, &BillboardSong::weeksOnChart);
}
std::optional<int64_t> numberOnes(Game& game) {
  return count(game.state.saveAllBillboardSongList, [](const BillboardSong& row) { return row.peakPosition == 1; });
}

/// What the best album week that still stands in the records brought in, whole dollars.
std::optional<int64_t> albumWeek(Game& game) {
  if (game.state.saveAllAlbumList.empty()) return std::nullopt;
  return most(game.state.saveAllWeeklyAlbumSales, &WeeklyAlbumSales::albumRevenue);
}

std::optional<int64_t> labelReturned(Game& game) {
  if (game.state.isLabelLaunched < 1) return std::nullopt;
  return truncate(labelReturn(game).net());
}

std::optional<int64_t> awardsWon(Game& game) {
  return count(game.state.saveAllMusicAwards, [](const Award& award) { return award.isWinner >= 1; });
}

std::optional<int64_t> goalsReached(Game& game) {
  if (game.state.AllCompletedAchievements.empty()) return std::nullopt;
  return static_cast<int64_t>(game.state.AllCompletedAchievements.size());
}

std::string artist(const GameState& state) { return state.myArtistsName; }
std::string label(const GameState& state) { return state.myLabelName; }
std::string songOfPlays(const GameState& state) {
  return nameOfMost(state.saveAllSongList, &Song::totalListen, &Song::title);
}
std::string albumOfUnits(const GameState& state) {
  return nameOfMost(state.saveAllAlbumList, &Album::albumsSold, &Album::title);
}
std::string songOfWeeks(const GameState& state) {
  return nameOfMost(state.saveAllBillboardSongList, &BillboardSong::weeksOnChart, &BillboardSong::songTitle);
}
std::string albumOfWeek(const GameState& state) {
  return nameOfMost(state.saveAllWeeklyAlbumSales, &WeeklyAlbumSales::albumRevenue, &WeeklyAlbumSales::albumTitle);
}

using enum HighScore::Told;

constexpr auto table = std::to_array<HighScore>({
    {"MONTHLYLISTENERS", "Monthly listeners", "headphones", &GameState::totalFanHighScore, listeners, artist, false,
     asItStands},
    {"MOSTPOPULARSONG", "Most popular song", "note", &GameState::mostPopularSongHighScore, songPlays, songOfPlays},
    {"MOSTPOPULARALBUM", "Most popular album", "album", &GameState::mostPopularAlbumHighScore, albumUnits,
     albumOfUnits},
    {"MOSTWEEKONCHART", "Most weeks on the chart", "calendar", &GameState::longestBillBoardHitHighScore, chartWeeks,
     songOfWeeks},
    {"MOSTNUMBER1", "Number ones", "podium", &GameState::mostNumberOneHighScore, numberOnes, artist},
    {"HIGHESTGROSSALBUMWK", "Highest grossing album week", "cash", &GameState::highestGrossAlbumWeekly, albumWeek,
     albumOfWeek, true},
    {"BESTRECORDLABEL", "Best return of a label", "label", &GameState::mostSuccessfulLabelHighScore, labelReturned,
     label, true, byReport},
    {"MOSTGRAMWINS", "GRAM wins", "statuette", &GameState::mostGramWins, awardsWon, artist},
    {"MOSTACHIEVEMENTS", "Achievements", "trophy", &GameState::mostAchievementsCompleted, goalsReached, artist},
});

}  // namespace

std::span<const HighScore> highScores() { return table; }

}  // namespace backbeat
