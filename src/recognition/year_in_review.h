// A year told in a few cards and one picture. Nothing of it is kept: it follows from the records each time.
#pragma once

#include <cstdint>
#include <vector>

#include "core/game_state.h"
#include "core/view.h"
#include "recognition/year_statistics.h"

namespace backbeat {

/// Whether there is anything to tell: the year is over, this generation lived it, and its records are there.
bool hasReview(const GameState& state, int64_t year);

/// Whether the report of this week leads to the review of the year that has just ended.
bool isReviewDue(const GameState& state);

struct YearInReview {
  /// The year in one picture, to keep and to share.
  Story story;
  /// Five to seven, each a sentence and a picture: the song, the album, the biggest week, the road, the heart, the
  /// money and the honours. What the year did not have is told only where there would be too few.
  std::vector<Card> cards;
};
YearInReview reviewOfYear(const GameState& state, int64_t year);

/// What something of a year looks like, wherever it is told.
Picture pictureOfWork(const GameState& state, YearKind kind, const YearWork& work);

}  // namespace backbeat
