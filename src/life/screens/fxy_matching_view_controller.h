// One candidate at a time, on a card.
#pragma once

#include "core/screen.h"

namespace backbeat {

class FXYMatchingViewController final : public Screen {
 public:
  using Screen::Screen;

  /// Draws the first candidate.
  Outcome open() override;
  Outcome act(const Action& action) override;
  View view() const override;
};

}  // namespace backbeat
