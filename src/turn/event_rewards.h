// What a week's side gigs pay: each reward is drawn from a range that a table picks.
#pragma once

#include "core/game.h"

namespace backbeat {

/// Listeners won by an appearance, by fame. Past six billion it collapses to a dozen: everybody knows the face already.
int64_t fanGainForAppearance(Game& game);

/// Listeners won by a short video: how viral it went, and how far the artist's fame carries it.
int64_t tikTakFanGain(Game& game);

/// Dollars of a hustle, by the cash that stands behind it. Debts, 100,000 and more, and the cents between two rows all
/// pay like a small purse, on purpose.
double hustleAmount(Game& game);

/// Dollars for the studio or what was made in it, by its five parts together.
double studioRentalIncome(Game& game);

/// Dollars for a song written for somebody else, by the artist's songwriting.
double ghostWritingIncome(Game& game);

/// Dollars for a music lesson, by songwriting and voice. The very best fall back to a wide range, as with the studio.
double musicLessonIncome(Game& game);

}  // namespace backbeat
