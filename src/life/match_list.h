// Everybody the artist ever matched with: opening a row, with what that risks, and asking out.
#pragma once

#include "core/game.h"
#include "core/outcome.h"

namespace backbeat {

/// The partner first, then those who wait, then what is over; runs on every visit.
void sortMatches(Game& game);

/// Opens the match. Who is with somebody may be caught at it, which costs 15 to 40 of the relationship and can end it
/// at once; a row of the partner, and any that is over while there is a partner, only tells of the love there is.
Outcome openMatchRow(Game& game, int64_t matchId);

/// Whether the match can be asked out: nothing has begun yet.
bool canAskOut(const Matches& match);

/// Yes makes a couple, no removes the match for good; which, was fixed when they matched. The screen closes.
Outcome askOut(Game& game, int64_t matchId);

}  // namespace backbeat
