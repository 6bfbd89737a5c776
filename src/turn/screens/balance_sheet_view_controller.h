// The income statement of the reported week.
#pragma once

#include "core/screen.h"

namespace backbeat {

class BalanceSheetViewController final : public Screen {
 public:
  using Screen::Screen;
  /// Nothing can be pressed: this screen only tells.
  Outcome act(const Action&) override { return {}; }
  View view() const override;
};

}  // namespace backbeat
