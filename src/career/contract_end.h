// How a deal with a record label ends: by its deadline, or by the artist's choice.
#pragma once

#include "core/game.h"
#include "core/outcome.h"

namespace backbeat {

/// The terms of an artist without a label.
namespace free_terms {
inline constexpr double streamingPayRate = 0.001;      ///< dollars a stream
inline constexpr double youViewStreamingRate = 0.005;  ///< dollars a view
inline constexpr double albumPricing = 6.99;           ///< dollars
inline constexpr double featureDiscount = 1.0;
inline constexpr double albumProductionCosts = 2.99;  ///< dollars an album
}  // namespace free_terms

/// Whether all three quotas are met; a quota of 0 always is.
bool contractFulfilled(const ContractLabel& contract);

/// Runs when a report has appeared. A contract past its last week with a quota unmet is terminated: a tour under way is
/// called off, the terms go, and the advance is taken back whatever the cash. One whose quotas are met runs on, with
/// its rates, until the artist ends it.
Outcome checkContractDeadlines(Game& game);

/// What a launch asks: an artist whose contract is not in the save any more, since its list was damaged or edited, is
/// free again and keeps the advance. Such an artist would get no other offer and find no way out. False when nothing
/// was amiss.
bool freeFromLostContract(Game& game);

/// The wish to end the contract: refused on tour; otherwise asks whether the artist is sure, and says what it costs.
/// "Yes" sends `confirmEndContract` to the screen.
Outcome endContract(const GameState& state);

/// Ends the contract: the advance goes back unless the quotas are met, with no floor under the cash. Refused on tour;
/// without a contract nothing happens.
Outcome confirmEndContract(Game& game);

}  // namespace backbeat
