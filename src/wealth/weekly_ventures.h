// What a week does to startups.
#pragma once

#include "core/game.h"

namespace backbeat {

/// Each startup of the portfolio comes a week nearer to its next round, and about once a year its valuation is looked
/// at: it rises, falls or stays. A valuation that stays makes no news and counts as a look all the same: intended. A
/// round that was due then closes without the artist. Without a stake nothing happens.
void updateVentureValuations(Game& game);

/// Whose valuation has sunk below a million is bankrupt; who has had all rounds may be bought or go public, which pays
/// the artist's part. At a million exactly nothing happens: intended. Without a stake nothing happens.
void resolveVentureExits(Game& game);

}  // namespace backbeat
