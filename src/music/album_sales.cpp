#include "music/album_sales.h"

#include <algorithm>
#include <utility>

#include "core/bands.h"
#include "core/numbers.h"
#include "core/text.h"

namespace backbeat {

namespace {

constexpr Band<int64_t, int64_t> marketingReach[] = {
    {10, 100},    {20, 500},     {30, 1'000},   {40, 5'000},     {50, 10'000},
    {60, 50'000}, {70, 100'000}, {80, 500'000}, {90, 1'000'000}, {250, 5'000'000},
};
constexpr int64_t reachBeyond = 100;

struct PriceRow {
  double from;
  double to;
  double least;
  double greatest;
};
constexpr PriceRow priceRows[] = {
    {3.00, 5.99, 0.6, 1.2},    {6.00, 8.99, 0.3, 0.6},     {9.00, 11.99, 0.2, 0.4},
    {12.00, 14.99, 0.15, 0.3}, {15.00, 17.99, 0.12, 0.25}, {18.00, 100.00, 0.1, 0.2},
};
constexpr double priceFactorBetweenRows = 0.9;

constexpr Band<int64_t, int64_t> awardTiers[] = {
    {124'999, 0}, {249'999, 1}, {499'999, 2}, {999'999, 3}, {9'999'999, 4}, {19'999'999'999, 5},
};

constexpr double shareOfReachThatBuys = 0.09;
constexpr double shareOfFansThatBuy = 0.18;
constexpr double viralityBase = 2;

/// Whole dollars, halves away from zero.
double revenue(const GameState& state, const Album& album, double units) {
  return static_cast<double>(
      roundHalfAway(album.percentageOfEarnings * (album.price * units - state.albumProductionCosts * units)));
}

void recordSales(GameState& state, const Album& album, int64_t sold, double revenueUnits) {
  WeeklyAlbumSales week;
  week.albumId = album.albumId;
  week.albumTitle = trimmed(album.title);
  week.albumSales = sold;
  week.albumRevenue = revenue(state, album, revenueUnits);
  week.weekNumber = state.weekNumber;
  week.yearNumber = state.yearNumber;
  state.saveAllWeeklyAlbumSales.append(std::move(week));
}

void addUnits(Album& album, int64_t sold) {
  album.albumsSold = add(album.albumsSold, sold);
  album.albumAward = std::max(album.albumAward, albumAwardTierFor(album.albumsSold));
}

void launchWeek(Game& game, size_t position, const AlbumMeans& means) {
  GameState& state = game.state;
  const Album& album = state.saveAllAlbumList[position];
  const double spread = game.random.uniformDouble(23, 27);
  const double viralMultiplier = power(viralityBase, means.virality / spread);
  const double reach =
      static_cast<double>(albumMarketingReachFor(truncate(album.marketingScore))) * shareOfReachThatBuys;
  game.turn.weeklyMarketingPoolTotal = add(game.turn.weeklyMarketingPoolTotal, truncate(reach));
  game.turn.weeklyMarketingPoolCount += 1;
  const double damper = game.random.uniformDouble(9, 11);
  const double priceFactor = priceFactorFor(game.random, album.price);
  const double units = (means.rating / 100) * (static_cast<double>(state.totalFans) * shareOfFansThatBuy + reach) *
                       (viralMultiplier / damper) * priceFactor;
  const int64_t sold = truncate(units);
  const double marketingDrop = game.random.uniformDouble(3, 5);
  recordSales(state, album, sold, static_cast<double>(sold));
  state.saveAllAlbumList.update(position, [&](Album& changed) {
    addUnits(changed, sold);
    changed.marketingScore = std::max(changed.marketingScore - marketingDrop, 0.0);
  });
}

void residualWeek(Game& game, size_t position, double life) {
  GameState& state = game.state;
  const Album& album = state.saveAllAlbumList[position];
  const double units = (life / 10'000) * static_cast<double>(album.albumsSold) * 0.5;
  const int64_t sold = truncate(units);
  // The money counts the fraction of a unit here, unlike in the launch phase: intended.
  if (units >= 1) recordSales(state, album, sold, units);
  const bool isDue = albumAwardTierFor(album.albumsSold) > album.albumAward;  // a career from outside may be behind
  if (sold > 0 || isDue) state.saveAllAlbumList.update(position, [&](Album& changed) { addUnits(changed, sold); });
}

}  // namespace

int64_t albumMarketingReachFor(int64_t marketingScore) { return bandFor(marketingReach, marketingScore, reachBeyond); }

double priceFactorFor(Random& random, double price) {
  for (const PriceRow& row : priceRows) {
    if (price >= row.from && price <= row.to) return random.uniformDouble(row.least, row.greatest);
  }
  return priceFactorBetweenRows;
}

int64_t albumAwardTierFor(int64_t units) { return bandFor(awardTiers, units, int64_t{0}); }

AlbumMeans albumMeans(const GameState& state, const Album& album) {
  AlbumMeans sums;
  for (const uint32_t position : state.saveAllSongList.groupOf(album.albumId)) {
    const Song& song = state.saveAllSongList[position];
    sums.rating += song.productionRating;
    sums.virality += song.viralityScore;
  }
  const double count = static_cast<double>(album.songCount);
  return {sums.rating / count, sums.virality / count};
}

double remainingLife(const GameState& state, const Album& album) {
  return albumMeans(state, album).rating - static_cast<double>(state.weekNumberForTracking - album.releaseWeek);
}

void simulateWeeklyAlbumSales(Game& game) {
  game.turn.weeklyMarketingPoolTotal = 0;
  game.turn.weeklyMarketingPoolCount = 0;
  GameState& state = game.state;
  for (const uint32_t i : state.saveAllAlbumList.awake()) {
    const Album& album = state.saveAllAlbumList[i];
    if (!album.isReleased) continue;
    const AlbumMeans means = albumMeans(state, album);
    const double life = means.rating - static_cast<double>(state.weekNumberForTracking - album.releaseWeek);
    if (!(life > 0)) continue;
    if (album.marketingScore > 0) {
      launchWeek(game, i, means);
    } else if (album.marketingScore == 0) {
      residualWeek(game, i, life);
    }
  }
  game.save(&GameState::saveAllWeeklyAlbumSales, &GameState::saveAllAlbumList);
}

}  // namespace backbeat
