// How many listen, and how that went over the last half year.
#pragma once

#include <string>

#include "core/screen.h"

namespace backbeat {

/// "\n1,204 new listeners this week (3.10%)", or without "new" when none were won; empty before two weeks are on
/// record. The text begins with a line break.
std::string listenersThisWeek(const GameState& state);

/// "9,310 in the past six months", from the first value that is still remembered; empty as above.
std::string listenersInSixMonths(const GameState& state);

class MonthlyListenerDetailViewController final : public Screen {
 public:
  using Screen::Screen;
  Outcome act(const Action&) override { return {}; }
  View view() const override;
};

}  // namespace backbeat
