// A child who waits for a family.
#pragma once

#include "core/screen.h"

namespace backbeat {

class AdoptionDetailViewController final : public Screen {
 public:
  using Screen::Screen;

  /// Draws the child.
  Outcome open() override;
  Outcome act(const Action& action) override;
  View view() const override;

 private:
  Child child_;
};

}  // namespace backbeat
