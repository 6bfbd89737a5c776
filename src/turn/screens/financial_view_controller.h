// The business tab: what the artist has, and the way to every account.
#pragma once

#include "core/screen.h"

namespace backbeat {

class FinancialViewController final : public Screen {
 public:
  using Screen::Screen;
  Outcome act(const Action& action) override;
  View view() const override;
};

}  // namespace backbeat
