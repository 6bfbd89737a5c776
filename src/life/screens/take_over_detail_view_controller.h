// What a child would begin with, and the step itself.
#pragma once

#include "core/screen.h"

namespace backbeat {

class TakeOverDetailViewController final : public Screen {
 public:
  /// The child at that place of the list.
  TakeOverDetailViewController(Game& game, int64_t selectedChildIndex)
      : Screen(game), selectedChildIndex_(selectedChildIndex) {}
  Outcome act(const Action& action) override;
  View view() const override;

 private:
  Outcome takeOverNow();

  int64_t selectedChildIndex_;
};

}  // namespace backbeat
