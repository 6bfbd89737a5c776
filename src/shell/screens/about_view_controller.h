// What the game is, its version, and the licences of what comes with it.
#pragma once

#include "core/screen.h"

namespace backbeat {

class AboutViewController final : public Screen {
 public:
  using Screen::Screen;
  Outcome act(const Action&) override { return {}; }
  View view() const override;
};

}  // namespace backbeat
