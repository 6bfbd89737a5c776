// What the label offers an artist, and whether they take it.
#pragma once

#include "core/game.h"
#include "core/outcome.h"
#include "core/price.h"
#include "label/scouted_artist.h"

namespace backbeat {

/// What an offer costs, whatever comes of it; the signing bonus is only paid to who accepts.
inline constexpr Price offerCost = {.energy = 25};

/// Terms on the table, and how they are liked.
struct SigningTerms {
  int64_t contractLength = 2;  ///< years, 2 to 10
  int64_t revenueShare = 90;   ///< per cent that the label keeps, 51 to 95
  int64_t signingBonus = 100'000;
  double chanceToSign = 0;  ///< twice the per cent that are shown; at least 0, and past 200 the offer cannot fail
};

enum class SigningTerm { contractLength, revenueShare, signingBonus };

/// The terms to begin with.
SigningTerms firstTerms(const GameState& state, const ScoutedArtist& artist);

/// The chance in per cent, cut.
int64_t chanceInPercent(const SigningTerms& terms);

/// Whether the term can still go a step up (1) or down (-1).
bool canStep(const SigningTerms& terms, SigningTerm term, int64_t way);

/// One step; at the end of its range nothing changes.
void stepTerm(SigningTerms& terms, SigningTerm term, int64_t way);

/// One offer. Refused while the studio has no room for another artist, then without the energy. The energy stays spent
/// when the artist declines, and also when they accept and the cash does not reach for the bonus: intended. Who signs
/// is under contract from now on, and the screen that answers closes. Nobody else can be made an offer: it changes
/// nothing.
Outcome makeOffer(Game& game, const ScoutedArtist& artist, const SigningTerms& terms);

}  // namespace backbeat
