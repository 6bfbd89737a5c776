// What daily life costs every week.
#pragma once

#include "core/screen.h"

namespace backbeat {

class ExpenseViewController final : public Screen {
 public:
  using Screen::Screen;
  /// Nothing can be pressed: this screen only tells.
  Outcome act(const Action&) override { return {}; }
  View view() const override;
};

}  // namespace backbeat
