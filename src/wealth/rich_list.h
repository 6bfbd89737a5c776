// The list of the rich: where a fortune stands in the world, and whose it is.
#pragma once

#include <cstdint>
#include <string>

#include "core/game.h"

namespace backbeat {

/// "#93" for a fortune in dollars, or "Unranked" below a hundredth of the greatest one. As much as the greatest itself
/// reads "#0", more reads "#1": intended.
std::string worldRank(double netAssets);

/// "Musician, Real Estate, Investor, Inheritance": the trades that made the fortune.
std::string sourceOfWealth(const GameState& state);

/// 1 to 10: less for every generation that was rich before.
int64_t selfMadeScore(const GameState& state);
/// 1 to 5, by charisma.
int64_t philanthropyScore(const GameState& state);

/// "Single", "Dating", "Engaged", "Married" or "Married with Kids".
std::string maritalStatus(const GameState& state);

/// What a look at the list finds.
struct RichListVisit {
  double netWorth = 0;  ///< dollars
  double change = 0;    ///< since the last visit
  bool isFirst = true;  ///< there was no last visit, or it found nothing
};
/// Takes that look, and remembers it for the next one.
RichListVisit visitRichList(Game& game);

}  // namespace backbeat
