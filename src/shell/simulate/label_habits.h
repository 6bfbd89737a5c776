// What the head of a label does in a week. As with the other habits (habits.h), a week that has no energy, no money or
// no occasion for one presses nothing, or takes the refusal.
#pragma once

#include "shell/simulate/player.h"

namespace backbeat {

/// Founds a label as soon as it can be: with a studio for it, off the road, out of a contract that is fulfilled, and
/// when `cashKept` dollars would be left.
void foundLabel(Player& player, double cashKept);

struct LabelHabit {
  double cashKept = 500'000;    ///< dollars below which nobody is hired or signed
  int64_t worstRating = 45;     ///< of an artist who is made an offer
  int64_t worstStaff = 40;      ///< rating of whoever is hired
  int64_t energyTrained = 110;  ///< for the traits of a head of a label, a week
};
/// Reviews albums, renews the contracts of those who have earned their bonus and drops the others, learns to lead,
/// hires for every department, and makes the best whom the scouts found an offer. Closes the doors when the cash is
/// gone.
void runLabel(Player& player, const LabelHabit& habit);

/// Closes the doors, if there are any.
void endLabel(Player& player);

}  // namespace backbeat
