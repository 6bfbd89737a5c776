// The save's housekeeping: lighter lists, and startups to invest in anew.
#pragma once

#include "core/screen.h"

namespace backbeat {

class DataViewController final : public Screen {
 public:
  using Screen::Screen;
  Outcome act(const Action& action) override;
  View view() const override;

  /// Asks before anything is removed, with the counts.
  Outcome optimizeButton() const;
  Outcome resetStartupsButton() const;
};

}  // namespace backbeat
