// Selling a stake back to the startup before it is sold or listed.
#pragma once

#include <cstdint>
#include <optional>

#include "core/game.h"
#include "core/outcome.h"

namespace backbeat {

/// Share of a stake's value that the company offers, by a roll from 0 to 100. The last two bands are alike: intended.
double buyBackRate(int64_t roll);

/// Makes sure that a running startup has its offer for this week, which is drawn once and stays. Nothing for one that
/// has ended, and for one that was declined this week.
void askForOffer(Game& game, int64_t businessId);

/// The offer that stands this week and was not declined; nothing without one.
std::optional<StakeOffer> offerFor(const Game& game, int64_t businessId);

/// What an offer comes to, in dollars.
double dollarsOf(const Venture& venture, const StakeOffer& offer);

/// Sells the stake for the offer. Refused where none stands.
Outcome sellStake(Game& game, int64_t businessId);

/// Lets the offer go; there is no other before the next week. Refused where none stands.
Outcome declineOffer(Game& game, int64_t businessId);

/// What is said where nobody wants the stake this week.
Outcome noInterest();

}  // namespace backbeat
