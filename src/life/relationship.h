// Life with a partner: what the two of them do, and what it does to them.
#pragma once

#include "core/game.h"
#include "core/outcome.h"
#include "core/price.h"

namespace backbeat {

inline constexpr Price qualityTimeCost = {.energy = 10};
inline constexpr Price complimentCost = {.energy = 2};
inline constexpr Price serenadeCost = {.energy = 15};
inline constexpr Price breakupCost = {.energy = 25};
/// Each time it costs 5 more, until a relationship ends.
Price askForMoneyCost(const GameState& state);

/// Without a partner each of these does nothing.

/// A date brings the two 2 to 7 closer. One that costs is refused without the cash, before anything is paid; what it
/// costs is drawn.
Outcome qualityTime(Game& game);

/// Closer by 1, half the time.
Outcome compliment(Game& game);

/// Closer by 1 to 7.
Outcome serenade(Game& game);

/// Cash out of the partner's earnings, at a risk that grows with nothing but bad luck.
Outcome askForMoney(Game& game);

/// Asks first; `confirmed` is sent to go through with it. Refused without the energy.
Outcome askToBreakUp(const Game& game, Action confirmed);
/// Ends it. Kind words before a marriage spare the drama; a divorce costs the settlement.
Outcome breakup(Game& game);

inline constexpr int64_t longestPartnerName = 40;  ///< characters

/// Sets the name of the partner, without white space at its ends; an empty one is as good as any.
void renamePartner(Game& game, const std::string& name);

}  // namespace backbeat
