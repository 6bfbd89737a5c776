// The end of one life and the beginning of the next: the artist retires, and a child goes on.
#pragma once

#include "core/game.h"
#include "core/outcome.h"

namespace backbeat {

/// Tested, and not charged.
inline constexpr int64_t takeoverEnergy = 75;

/// What an heir begins with.
struct Inheritance {
  double legacyNetWorth = 0;  ///< dollars; undivided, below 0 for a debt
  int64_t cash = 0;           ///< the heir's share of that, toward zero; 1 when nobody in the family shares it
  int64_t followers = 0;
  int64_t maxEnergy = 0;  ///< with what was bought for good
};
Inheritance inheritanceOf(const GameState& state, const Child& heir);

/// The place of a child who could take over; nothing for any other.
std::optional<size_t> heirPosition(const GameState& state, int64_t index);

/// Asks first; `confirmed` is sent to go through with it. Refused without the energy.
Outcome retireAndPlayAs(const Game& game, int64_t index, Action confirmed);

/// Writes the artist into the family's book, ends everything that was only the artist's, and puts the child in the
/// artist's place, in the same week of the same year. Refused without the energy. The caller keeps a copy before.
Outcome takeOver(Game& game, int64_t index);

}  // namespace backbeat
