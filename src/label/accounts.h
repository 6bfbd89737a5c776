// What the label brings and costs.
#pragma once

#include "core/game.h"

namespace backbeat {

/// Dollars that the label's artists brought in the reported week, with its revenue bonus.
double lastWeeksRoyalties(const GameState& state);

/// Dollars that the coming week costs whatever comes in: salaries, perks and rent.
double runningCosts(const GameState& state);

struct LabelSums {
  const EarnedSums& streams;
  const EarnedSums& sales;
};

/// Dollars of all weeks still remembered, without the bonus: by song, album and artist, and in all. They are summed as
/// the weeks come, so that asking looks at those alone that came since the last time.
LabelSums labelSums(Game& game);

/// Of a work or an artist among such sums; 0 of one that earned nothing.
double earnedBy(const std::map<int64_t, double>& sums, int64_t id);

/// What an artist brought by songs and albums.
double earnedByArtist(Game& game, int64_t artistId);

/// What all weeks still remembered brought.
double storedRoyalties(Game& game);

/// What has come of the whole venture, in dollars.
struct LabelReturn {
  double albums = 0;
  double streams = 0;
  double verses = 0;  ///< the player's own on songs of the artists, those of an earlier label too: intended
  double cost = 0;

  double earnings() const { return albums + streams + verses; }
  double net() const { return earnings() - cost; }
};
LabelReturn labelReturn(Game& game);

/// Keeps the label's net, cut to whole dollars, where it is the most that any label ever returned.
void keepBestReturn(Game& game);

}  // namespace backbeat
