#include <algorithm>
#include <map>

#include "core/money.h"
#include "core/short_money.h"
#include "play/figures.h"
#include "recognition/achievements.h"
#include "recognition/high_scores.h"
#include "recognition/year_statistics.h"

namespace backbeat {

namespace {

/// One goal, as far as this world is towards it.
Standings goalFigures(const GameState& state, const Achievement& goal) {
  const std::string title(goal.title);
  Standings standings = {{title + ": subtitle", goal.task()}};
  if (!goal.measure || isCompleted(state, goal.id)) return standings;
  const Progress progress = goal.measure(state, goal.amount);
  if (progress.needed <= 1) return standings;
  standings.push_back({title, goal.amountText(progress.now)});
  standings.push_back({title + ": note", "of " + goal.amountText(progress.needed)});
  standings.push_back({title + ": share", shareText(std::min(progress.now / progress.needed, 1.0))});
  return standings;
}

Standings achievementFigures(Game& twin) {
  const size_t found = completeReached(twin).size();
  const GameState& state = twin.state;
  const std::string count = std::to_string(completedCount(state)) + " of 82";
  Standings standings = {{"subtitle", "Achieved " + count},
                         {"gauges", count},
                         {"gauges: note", "8 categories"},
                         {"text", "and " + std::to_string(found - 3) + " more"}};
  for (const int64_t nearest : {102, 151, 128, 122, 117})
    standings = standings + goalFigures(state, *achievementWithId(nearest));
  for (const Achievement& goal : achievements()) standings = standings + goalFigures(state, goal);
  for (size_t kind = 0; kind < goalKinds.size(); ++kind) {
    int64_t all = 0;
    int64_t reached = 0;
    for (const Achievement& goal : achievements()) {
      if (goal.kind != static_cast<GoalKind>(kind)) continue;
      all += 1;
      reached += isCompleted(state, goal.id) ? 1 : 0;
    }
    const std::string title(goalKinds[kind].title);
    standings.push_back({title, std::to_string(reached) + " of " + std::to_string(all)});
    standings.push_back({title + ": share", shareText(static_cast<double>(reached) / static_cast<double>(all))});
  }
  return standings;
}

Standings recordFigures(Game& twin) {
  const GameState& state = twin.state;
  Standings standings;
  for (const HighScore& score : highScores()) {
    const auto told = [&](int64_t amount) {
      return score.dollars ? currency(static_cast<double>(amount)) : withCommas(amount);
    };
    const std::string title(score.title);
    const int64_t best = state.*score.best;
    standings.push_back({title, told(best)});
    standings.push_back({title + ": note", "to beat: " + told(best + 1)});
    const auto value = score.value(twin);
    if (!value) continue;
    standings.push_back({title + ": subtitle", "This life: " + told(*value)});
    const double share = static_cast<double>(*value) / static_cast<double>(best + 1);
    standings.push_back({title + ": share", shareText(std::clamp(share, 0.0, 1.0))});
  }
  return standings;
}

constexpr int64_t year = 2049;

template <class T, class Number>
Number sumOf(const RecordList<T>& list, Number T::*number) {
  Number sum = 0;
  for (const T& row : list) sum += row.yearNumber == year ? row.*number : 0;
  return sum;
}

void beginWithTheFirst(Game& game) { game.state.ageAtTakeover = 0; }

Standings statisticsFigures(Game& twin) {
  std::map<int64_t, YearWork> songs;
  std::vector<double> weeks(52);
  for (const WeeklySongListens& row : twin.state.saveAllWeeklySongListens) {
    if (row.yearNumber != year) continue;
    songs[row.songId].title = row.songTitle;
    songs[row.songId].amount += row.songListens;
    songs[row.songId].dollars += row.totalStreamRevenue;
    weeks[static_cast<size_t>(row.weekNumber) - 1] += static_cast<double>(row.songListens);
  }
  const auto best = std::max_element(weeks.begin(), weeks.end());
  const auto& rows = twin.state.saveAllWeeklySongListens;
  Standings standings = {{"Year", "2049"},
                         {"Streams", withCommas(sumOf(rows, &WeeklySongListens::songListens))},
                         {"Streams: points", pointsText(weeks)},
                         {"Earned", currency(sumOf(rows, &WeeklySongListens::totalStreamRevenue))},
                         {"Songs heard", std::to_string(songs.size())},
                         {"Best week", "Week " + std::to_string(best - weeks.begin() + 1)},
                         {"Best week: note", abbreviated(*best) + " streams"},
                         {"heading", "Best of 2049"}};
  for (const auto& [id, song] : songs) {
    standings.push_back({song.title, abbreviated(static_cast<double>(song.amount))});
    standings.push_back({song.title + ": subtitle", currency(song.dollars)});
  }
  return standings;
}

void endTheYear(Game& game) {
  beginWithTheFirst(game);
  game.state.yearNumber = year + 1;
}

Standings reviewFigures(Game& twin) {
  const GameState& state = twin.state;
  std::map<int64_t, WeeklySongListens> best;
  std::map<int64_t, int64_t> heard;
  std::map<int64_t, std::string> titles;
  for (const WeeklySongListens& row : state.saveAllWeeklySongListens) {
    if (row.yearNumber != year) continue;
    if (row.songListens > best[row.weekNumber].songListens) best[row.weekNumber] = row;
    heard[row.songId] += row.songListens;
    titles[row.songId] = row.songTitle;
  }
  double earned =
      sumOf(state.saveAllWeeklyAlbumSales, &WeeklyAlbumSales::albumRevenue) +
      sumOf(state.saveAllWeeklyTourSales, &WeeklyTourSales::tourRevenue) +
      sumOf(state.saveAllMerchWeeklySales, &MerchWeeklySales::merchGross) -
      sumOf(state.saveAllMerchWeeklySales, &MerchWeeklySales::merchTransactionFees) +
      sumOf(state.saveAllSignedArtistWeeklySongListens, &SignedArtistWeeklySongListens::totalStreamRevenue) +
      sumOf(state.saveAllSignedArtistWeeklyAlbumSales, &SignedArtistWeeklyAlbumSales::albumRevenue) +
      sumOf(state.saveAllWeeklyVideoViews, &WeeklyVideoViews::totalViewRevenue) +
      sumOf(state.saveAllFeaturedOnWeeklySongListens, &FeaturedOnWeeklySongListens::totalStreamRevenue);
  for (const auto& [week, row] : best) earned += row.totalStreamRevenue;
  for (const Festival& festival : state.saveAllFestivalList) {
    const bool isPlayed = festival.weekNumberForTracking < state.weekNumberForTracking;
    if (festival.yearNumber == year && isPlayed) earned += festival.payment;
  }
  const auto count = [](int64_t number) { return abbreviated(static_cast<double>(number)); };
  Standings standings = {{"story: figure", "2049"},
                         {"streams", count(sumOf(state.saveAllWeeklySongListens, &WeeklySongListens::songListens))},
                         {"albums sold", count(sumOf(state.saveAllWeeklyAlbumSales, &WeeklyAlbumSales::albumSales))},
                         {"earned", abbreviatedDollars(earned)},
                         {"shows sold out", "0 of 2"}};
  std::vector<std::pair<int64_t, std::string>> songs;
  for (const auto& [id, streams] : heard) songs.emplace_back(streams, titles[id]);
  std::sort(songs.rbegin(), songs.rend());
  songs.resize(std::min<size_t>(songs.size(), 3));
  standings.push_back({"story: text", count(songs.at(0).first) + " plays"});
  for (const auto& [streams, title] : songs) standings.push_back({title, count(streams)});
  return standings;
}

std::vector<ScreenFigures> screens() {
  return {
      {.segue = "goToAchievements", .figures = achievementFigures, .noFigures = {"card*"}},
      {.segue = "goToRecords", .figures = recordFigures, .noFigures = {"text"}},
      {.segue = "goToYearlyMusicStats", .figures = statisticsFigures, .before = beginWithTheFirst},
      {.segue = "goToYearInReview",
       .argument = "2049",
       .figures = reviewFigures,
       .before = endTheYear,
       .noFigures = {"card*"}},
  };
}

const FiguresOf goals{.screens = screens};

}  // namespace

}  // namespace backbeat
