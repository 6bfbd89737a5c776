// The artist's own studio: its five parts and what it is worth.
#pragma once

#include "core/screen.h"

namespace backbeat {

class MyStudioViewController final : public Screen {
 public:
  using Screen::Screen;
  Outcome act(const Action& action) override;
  View view() const override;
};

}  // namespace backbeat
