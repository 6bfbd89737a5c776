// The artist's children, the eldest first to come first.
#pragma once

#include "core/screen.h"

namespace backbeat {

class ChildListViewController final : public Screen {
 public:
  using Screen::Screen;
  Outcome act(const Action& action) override;
  View view() const override;

 private:
  ListWindow window_;
};

}  // namespace backbeat
