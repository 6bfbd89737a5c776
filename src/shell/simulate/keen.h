// Works at it every week: a song every other week, some of them on albums, and the rest of the energy for the skills.
#pragma once

#include "shell/simulate/strategy.h"

namespace backbeat {

class Keen final : public Strategy {
 public:
  void playWeek(Player& player, int64_t week) override;
};

/// The same work over generations: who takes over begins as the first artist did.
class KeenFamily {
 public:
  /// Somebody else plays from this week on.
  void beginAnew(int64_t week) { firstWeek_ = week; }
  void playWeek(Player& player, int64_t week) { artist_.playWeek(player, week - firstWeek_ + 1); }

 private:
  Keen artist_;
  int64_t firstWeek_ = 1;  ///< of the generation that plays
};

}  // namespace backbeat
