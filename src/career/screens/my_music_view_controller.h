// The artist's traits: their levels, what the next one costs, and what each is good for.
#pragma once

#include "core/screen.h"

namespace backbeat {

class MyMusicViewController final : public Screen {
 public:
  using Screen::Screen;
  Outcome act(const Action& action) override;
  View view() const override;
};

}  // namespace backbeat
