// What the channel says of itself.
#pragma once

#include "core/screen.h"

namespace backbeat {

class YouDescriptionViewController final : public Screen {
 public:
  using Screen::Screen;
  Outcome act(const Action& action) override;
  View view() const override;
};

}  // namespace backbeat
