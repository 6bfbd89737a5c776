// Seven rings to propose with.
#pragma once

#include "core/screen.h"

namespace backbeat {

class EngagementRingViewController final : public Screen {
 public:
  using Screen::Screen;
  Outcome act(const Action& action) override;
  View view() const override;
};

}  // namespace backbeat
