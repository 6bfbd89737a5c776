// What every released album sells each week.
#pragma once

#include "core/game.h"

namespace backbeat {

/// The audience that an album's marketing score reaches, by the whole part of the score; over 250 it falls back.
int64_t albumMarketingReachFor(int64_t marketingScore);

/// How willingly buyers pay a price in dollars, drawn anew at each use. Outside the rows and in the gaps between them
/// (5.995) it is 0.9 without a draw, so that 2.99 out-sells 6.99 by far: intended.
double priceFactorFor(Random& random, double price);

/// Certification tier by lifetime units, 0 to 5. From 20 billion units the table says 0 again; an album keeps its tier
/// all the same, since a tier never falls.
int64_t albumAwardTierFor(int64_t units);

/// What the album's life and sales rest on: means over its songs, but divided by its `songCount`, not by the number of
/// songs found. Intended.
struct AlbumMeans {
  double rating = 0;
  double virality = 0;
};
AlbumMeans albumMeans(const GameState& state, const Album& album);

/// The weeks an album still sells: its mean rating less its age.
double remainingLife(const GameState& state, const Album& album);

/// Step 1 of the turn; it opens the marketing pool. In its launch phase (marketing above 0) an album sells by fans,
/// reach, virality and price, and records the week even at 0 units; in its residual phase (marketing 0) it sells a
/// small, shrinking part of its lifetime units.
void simulateWeeklyAlbumSales(Game& game);

}  // namespace backbeat
