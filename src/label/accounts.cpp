#include "label/accounts.h"

#include "career/ledger.h"
#include "core/numbers.h"
#include "core/reported_week.h"
#include "core/week_rows.h"
#include "label/office.h"

namespace backbeat {

namespace {

template <class T>
const EarnedSums& sumFurther(RunningTally<EarnedSums>& sums, const RecordList<T>& rows, int64_t T::*work,
                             double T::*dollars) {
  return sums.over(rows, [&](EarnedSums& sum, const T& row) {
    sum.ofWork[row.*work] += row.*dollars;
    sum.ofArtist[row.artistId] += row.*dollars;
    sum.total += row.*dollars;
  });
}

double versesOnTheLabel(const GameState& state) {
  double sum = 0;
  for (const FeaturedOn& verse : state.saveAllFeaturedOnList) {
    if (verse.isSignedArtist != 1) continue;
    for (const uint32_t week : state.saveAllFeaturedOnWeeklySongListens.historyOf(verse.songId)) {
      sum += state.saveAllFeaturedOnWeeklySongListens[week].totalStreamRevenue;
    }
  }
  return sum;
}

}  // namespace

double lastWeeksRoyalties(const GameState& state) {
  const CalendarWeek week = reportedWeek(state);
  double sum = 0;
  for (const auto& row : rowsOfWeek(state.saveAllSignedArtistWeeklySongListens, week)) sum += row.totalStreamRevenue;
  for (const auto& row : rowsOfWeek(state.saveAllSignedArtistWeeklyAlbumSales, week)) sum += row.albumRevenue;
  return sum * (state.labelRevenueBonus / 100 + 1);
}

double runningCosts(const GameState& state) {
  double sum = officeCosts(state);
  for (const WeeklyLineItem& item : state.saveAllWeeklyLineItems) {
    if (item.typeOfExpense >= expense::firstStaff && item.typeOfExpense <= expense::lastLabelCost) sum += item.amount;
  }
  return sum;
}

LabelSums labelSums(Game& game) {
  LabelMemory& label = game.launch.label;
  return {sumFurther(label.streams, game.state.saveAllSignedArtistWeeklySongListens,
                     &SignedArtistWeeklySongListens::songId, &SignedArtistWeeklySongListens::totalStreamRevenue),
          sumFurther(label.sales, game.state.saveAllSignedArtistWeeklyAlbumSales,
                     &SignedArtistWeeklyAlbumSales::albumId, &SignedArtistWeeklyAlbumSales::albumRevenue)};
}

double earnedBy(const std::map<int64_t, double>& sums, int64_t id) {
  const auto found = sums.find(id);
  return found == sums.end() ? 0 : found->second;
}

double earnedByArtist(Game& game, int64_t artistId) {
  const LabelSums label = labelSums(game);
  return earnedBy(label.sales.ofArtist, artistId) + earnedBy(label.streams.ofArtist, artistId);
}

double storedRoyalties(Game& game) {
  const LabelSums label = labelSums(game);
  return label.sales.total + label.streams.total;
}

LabelReturn labelReturn(Game& game) {
  const LabelSums label = labelSums(game);
  return {.albums = label.sales.total,
          .streams = label.streams.total,
          .verses = versesOnTheLabel(game.state),
          .cost = game.state.totalRecordLabelCost};
}

void keepBestReturn(Game& game) {
  if (game.state.isLabelLaunched < 1) return;
  const int64_t net = truncate(labelReturn(game).net());
  if (net <= game.state.mostSuccessfulLabelHighScore) return;
  game.state.mostSuccessfulLabelHighScore = net;
  game.save(&GameState::mostSuccessfulLabelHighScore);
}

}  // namespace backbeat
