// The life tab: getting better, working, and how the artist lives.
#pragma once

#include "core/screen.h"

namespace backbeat {

class DailyLifeViewController final : public Screen {
 public:
  using Screen::Screen;
  Outcome act(const Action& action) override;
  View view() const override;
};

}  // namespace backbeat
