// The dating app's first page: whom to look for, and the messages.
#pragma once

#include "core/screen.h"

namespace backbeat {

class FXYDatingViewController final : public Screen {
 public:
  using Screen::Screen;
  Outcome act(const Action& action) override;
  View view() const override;

  Outcome seekingManOrWoman(const Action& action);
};

}  // namespace backbeat
