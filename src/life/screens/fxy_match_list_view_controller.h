// Everybody the player ever matched with.
#pragma once

#include "core/screen.h"

namespace backbeat {

class FxyMatchListViewController final : public Screen {
 public:
  using Screen::Screen;

  /// Sorts the list.
  Outcome appear() override;
  Outcome act(const Action& action) override;
  View view() const override;

 private:
  ListWindow window_;
};

}  // namespace backbeat
